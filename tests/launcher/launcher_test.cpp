// The command of an installation: the bundle that it sets up for each window, and the program that
// it executes.

#include "launcherfixture.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// Prints where it runs, and waits for the end of its standard input.
const QByteArray windowText = "#!/bin/sh\necho \"$0\"\nread -r line\n";

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (lstat(path.toUtf8().constData(), &status) != 0)
        qFatal("no such file: %s", qPrintable(path));
    return status;
}

} // namespace

class LauncherTest : public LauncherFixture
{
    Q_OBJECT

private slots:
    void programIsACopyAndTheRestAreLinks();
    void argumentsFolderAndStatusArePassedOn();
    void dataFolderIsTheUsers_data();
    void dataFolderIsTheUsers();
    void foldersAreForTheUserAlone();
    void secondStartTouchesNothing();
    void changesAreTakenOver_data();
    void changesAreTakenOver();
    void anotherPlaceIsTakenOver();
    void startsAtOnceAllSucceed();
    void eachWindowHasAFolderOfItsOwn();
    void foldersOfClosedWindowsAreUsedAgain();

private:
    /// A program that runs on, and the folder that holds its bundle, below that of the data.
    std::pair<std::unique_ptr<QProcess>, QString> openWindow() const;
};

void LauncherTest::programIsACopyAndTheRestAreLinks()
{
    run(home());
    QVERIFY(QFile::exists(path(u"home/.local/share/tessaro/setting.ini"_s)));
    const QString installed = m_prefix + u"/lib/tessaro/Tessaro.app/Contents/"_s;
    QVERIFY(S_ISREG(statusOf(own(u"MacOS/tessaro"_s)).st_mode));
    for (const QString &link : {u"MacOS/convert"_s, u"Plugins"_s, u"Resources"_s})
        QCOMPARE(QFile::symLinkTarget(own(link)), installed + link);
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(own(u"MacOS"_s)).entryList(everything),
             QStringList({u"convert"_s, u"tessaro"_s}));
    QCOMPARE(QDir(own(u""_s)).entryList(everything),
             QStringList({u"MacOS"_s, u"Plugins"_s, u"Resources"_s}));
}

void LauncherTest::argumentsFolderAndStatusArePassedOn()
{
    const Ended result = run(home(), {u"a b"_s, u"--help"_s, u""_s});
    QCOMPARE(result.output, "1|" + m_folder->path().toUtf8() + "|a b --help \n");
    QCOMPARE(result.status, 7);
}

void LauncherTest::dataFolderIsTheUsers_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("folder");
    QTest::newRow("the home folder") << Variables{u"HOME=%/home"_s} << u"home/.local/share"_s;
    QTest::newRow("a data folder")
        << Variables{u"HOME=%/home"_s, u"XDG_DATA_HOME=%/my data"_s} << u"my data"_s;
    QTest::newRow("a data folder without a home")
        << Variables{u"XDG_DATA_HOME=%/data"_s} << u"data"_s;
    QTest::newRow("an empty data folder")
        << Variables{u"HOME=%/home"_s, u"XDG_DATA_HOME="_s} << u"home/.local/share"_s;
    QTest::newRow("a relative data folder")
        << Variables{u"HOME=%/home"_s, u"XDG_DATA_HOME=data"_s} << u"home/.local/share"_s;
}

void LauncherTest::dataFolderIsTheUsers()
{
    QFETCH(Variables, variables);
    QFETCH(QString, folder);
    variables.replaceInStrings(u"%"_s, m_folder->path());
    QCOMPARE(run(variables).status, 7);
    QVERIFY(QFile::exists(path(folder + u"/tessaro/Tessaro.app/Contents/MacOS/tessaro"_s)));
}

void LauncherTest::foldersAreForTheUserAlone()
{
    run(home());
    for (const QString &name : {u"home/.local"_s, u"home/.local/share/tessaro"_s})
        QCOMPARE(statusOf(path(name)).st_mode & 0777, mode_t(0700));
    QCOMPARE(statusOf(own(u"MacOS/tessaro"_s)).st_mode & 0777, mode_t(0700));
}

void LauncherTest::secondStartTouchesNothing()
{
    const QStringList names = {u"MacOS/tessaro"_s, u"MacOS/convert"_s, u"Plugins"_s,
                               u"Resources"_s};
    const auto kept = [this, &names](const QString &name) {
        return path(u"kept-%1"_s.arg(names.indexOf(name)));
    };
    run(home());
    // A second name keeps the number of a file that is removed from being given to the next one.
    for (const QString &name : names)
        QCOMPARE(link(own(name).toUtf8().constData(), kept(name).toUtf8().constData()), 0);
    QCOMPARE(run(home()).status, 7);
    for (const QString &name : names)
        QCOMPARE(statusOf(own(name)).st_ino, statusOf(kept(name)).st_ino);
}

void LauncherTest::changesAreTakenOver_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("a new program of the same size") << u"write installed"_s;
    QTest::newRow("a damaged copy") << u"write own"_s;
    QTest::newRow("a copy that is cut off") << u"cut own"_s;
    QTest::newRow("a link in the copy's place") << u"link own"_s;
    QTest::newRow("a copy that cannot be executed") << u"rw-------"_s;
    QTest::newRow("a copy that cannot be read") << u"-wx------"_s;
    QTest::newRow("a folder in a link's place") << u"folder"_s;
}

void LauncherTest::changesAreTakenOver()
{
    QFETCH(QString, change);
    run(home());
    const QString copy = own(u"MacOS/tessaro"_s);
    if (change == u"write installed"_s)
        write(u"MacOS/tessaro"_s, programText('2'));
    else if (change == u"write own"_s)
        QVERIFY(QFile::remove(copy) && QFile::copy(u"/bin/true"_s, copy));
    else if (change == u"cut own"_s)
        QVERIFY(QFile::resize(copy, 10));
    else if (change == u"rw-------"_s)
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));
    else if (change == u"-wx------"_s)
        QVERIFY(QFile::setPermissions(copy, QFile::WriteOwner | QFile::ExeOwner));
    else if (change == u"folder"_s)
        QVERIFY(QFile::remove(own(u"Plugins"_s)) && QDir().mkpath(own(u"Plugins/platforms"_s)));
    else
        QVERIFY(QFile::remove(copy) &&
                QFile::link(m_prefix + u"/lib/tessaro/Tessaro.app/Contents/MacOS/tessaro"_s, copy));
    const char *version = change == u"write installed"_s ? "2|" : "1|";
    QVERIFY(run(home()).output.startsWith(version));
    QCOMPARE(statusOf(copy).st_mode, mode_t(S_IFREG | S_IRWXU));
    QVERIFY(S_ISLNK(statusOf(own(u"Plugins"_s)).st_mode));
}

void LauncherTest::anotherPlaceIsTakenOver()
{
    run(home());
    const QString moved = path(u"elsewhere"_s);
    QVERIFY(QDir().rename(m_prefix, moved));
    m_prefix = moved;
    QCOMPARE(run(home()).status, 7);
    QCOMPARE(QFile::symLinkTarget(own(u"Plugins"_s)),
             moved + u"/lib/tessaro/Tessaro.app/Contents/Plugins"_s);
}

void LauncherTest::startsAtOnceAllSucceed()
{
    for (const char version : {'1', '2'}) {
        write(u"MacOS/tessaro"_s, programText(version) + QByteArray(1'000'000, '\n'));
        std::vector<std::unique_ptr<QProcess>> starts;
        std::generate_n(std::back_inserter(starts), 20, [this] { return start(home()); });
        for (const auto &process : starts) {
            const Ended result = ended(*process);
            QCOMPARE(result.errors, QByteArray());
            QVERIFY(result.output.startsWith(version));
        }
    }
    QCOMPARE(
        QDir(own(u"MacOS"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList({u"convert"_s, u"tessaro"_s}));
}

std::pair<std::unique_ptr<QProcess>, QString> LauncherTest::openWindow() const
{
    std::unique_ptr<QProcess> window = start(home());
    window->waitForReadyRead();
    const QString executable = QString::fromUtf8(window->readLine());
    return {std::move(window),
            executable.section(u"/share/tessaro/"_s, 1, 1).section(u"Tessaro.app"_s, 0, 0)};
}

void LauncherTest::eachWindowHasAFolderOfItsOwn()
{
    write(u"MacOS/tessaro"_s, windowText);
    std::vector<std::unique_ptr<QProcess>> windows;
    QStringList folders;
    for (int i = 0; i < 3; ++i) {
        auto [window, folder] = openWindow();
        windows.push_back(std::move(window));
        folders << folder;
    }
    QCOMPARE(folders, QStringList({u""_s, u"window-2/"_s, u"window-3/"_s}));
    // What one remembers, the others find.
    const auto settingsIn = [this](const QString &folder) {
        return path(u"home/.local/share/tessaro/"_s + folder + u"setting.ini"_s);
    };
    QSettings(settingsIn(u"window-3/"_s), QSettings::IniFormat).setValue(u"dir/input"_s, u"/a"_s);
    for (const QString &folder : folders) {
        const QSettings settings(settingsIn(folder), QSettings::IniFormat);
        QCOMPARE(settings.value(u"dir/input"_s).toString(), u"/a"_s);
    }
    for (const auto &window : windows) {
        window->closeWriteChannel();
        QVERIFY(window->waitForFinished());
    }
}

void LauncherTest::foldersOfClosedWindowsAreUsedAgain()
{
    write(u"MacOS/tessaro"_s, windowText);
    const auto first = openWindow(), second = openWindow();
    first.first->kill(); // whatever ends a program
    QVERIFY(first.first->waitForFinished());
    const auto third = openWindow(), fourth = openWindow();
    QCOMPARE(third.second, u""_s);
    QCOMPARE(fourth.second, u"window-3/"_s);
    second.first->closeWriteChannel();
    QVERIFY(second.first->waitForFinished());
    QCOMPARE(openWindow().second, u"window-2/"_s);
}

QTEST_GUILESS_MAIN(LauncherTest)
#include "launcher_test.moc"
