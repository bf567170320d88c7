// The command of an installation: the bundle that it sets up for each window, and the program that
// it executes.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using Variables = QStringList;

/// The installed program prints how it was started; a change of `version` keeps its size.
QByteArray programText(char version)
{
    return QByteArray("#!/bin/sh\necho \"") + version + R"(|$PWD|$*"
[ -z "$TESSARO_PLACE_FAILURE$TESSARO_TOOLS_FAILURE" ] && exit 7
echo "place: $TESSARO_PLACE_FAILURE, tools: $TESSARO_TOOLS_FAILURE" >&2
exit 1
)";
}

/// Prints where it runs, and waits for the end of its standard input.
const QByteArray windowText = "#!/bin/sh\necho \"$0\"\nread -r line\n";

struct Ended
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

Ended ended(QProcess &process)
{
    process.waitForFinished();
    if (process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (lstat(path.toUtf8().constData(), &status) != 0)
        qFatal("no such file: %s", qPrintable(path));
    return status;
}

} // namespace

class LauncherTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
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
    void failuresArePassedOn_data();
    void failuresArePassedOn();
    void failureWithoutAProgramIsPrinted();
    void failureLeavesNoBundle();
    void lockThatCannotBeMadeIsNamed();
    void fileSystemWithoutLocksHasOneBundle();
    void programThatCannotRunIsNamed();
    void noexecIsNamed();
    void toolsThatAreNotSetUpArePassedOn();

private:
    void write(const QString &name, const QByteArray &content) const;
    std::unique_ptr<QProcess> start(const Variables &variables,
                                    const QStringList &words = {}) const;
    Ended run(const Variables &variables, const QStringList &words = {}) const;
    /// With system calls refused: tests/support/withoutcalls.cpp.
    Ended runWithout(const QString &calls) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString own(const QString &name) const
    {
        return path(u"home/.local/share/tessaro/Tessaro.app/Contents/"_s + name);
    }
    Variables home() const { return {u"HOME="_s + path(u"home"_s)}; }
    /// A program that runs on, and the folder that holds its bundle, below that of the data.
    std::pair<std::unique_ptr<QProcess>, QString> openWindow() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_prefix;
};

void LauncherTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_prefix = path(u"a prefix"_s);
    QVERIFY(QDir().mkpath(path(u"home"_s)));
    QVERIFY(QDir().mkpath(m_prefix + u"/bin"_s));
    QVERIFY(QFile::copy(QStringLiteral(TESSARO_LAUNCHER), m_prefix + u"/bin/tessaro"_s));
    write(u"MacOS/tessaro"_s, programText('1'));
    write(u"MacOS/convert"_s, "convert");
    write(u"Plugins/platforms/libq.so"_s, "plug-in");
    write(u"Resources/convert.tool"_s, "tool");
}

void LauncherTest::write(const QString &name, const QByteArray &content) const
{
    const QString file = m_prefix + u"/lib/tessaro/Tessaro.app/Contents/"_s + name;
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QFile::remove(file);
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(content) == content.size());
    QVERIFY(out.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

std::unique_ptr<QProcess> LauncherTest::start(const Variables &variables,
                                              const QStringList &words) const
{
    auto process = std::make_unique<QProcess>();
    process->setEnvironment(variables);
    process->setWorkingDirectory(m_folder->path());
    process->start(m_prefix + u"/bin/tessaro"_s, words);
    return process;
}

Ended LauncherTest::run(const Variables &variables, const QStringList &words) const
{
    return ended(*start(variables, words));
}

Ended LauncherTest::runWithout(const QString &calls) const
{
    QProcess process;
    process.setEnvironment(home());
    process.start(QStringLiteral(TESSARO_WITHOUTCALLS), {calls, m_prefix + u"/bin/tessaro"_s});
    return ended(process);
}

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

void LauncherTest::failuresArePassedOn_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("failure");
    QTest::newRow("no home") << Variables() << u"HOME: No such file or directory"_s;
    QTest::newRow("a home that is a file")
        << Variables{u"HOME=/bin/true"_s} << u"/bin/true/.local: Not a directory"_s;
    QTest::newRow("a home that cannot be written")
        << Variables{u"HOME=/proc"_s} << u"/proc/.local: No such file or directory"_s;
}

void LauncherTest::failuresArePassedOn()
{
    QFETCH(Variables, variables);
    QFETCH(QString, failure);
    const Ended result = run(variables, {u"--help"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(QString::fromUtf8(result.errors), u"place: %1, tools: \n"_s.arg(failure));
    QVERIFY(result.output.endsWith("|--help\n")); // which the program answers
}

void LauncherTest::failureWithoutAProgramIsPrinted()
{
    QVERIFY(QFile::remove(m_prefix + u"/lib/tessaro/Tessaro.app/Contents/MacOS/tessaro"_s));
    const Ended result = run({});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("tessaro: HOME: No such file or directory\n"));
}

void LauncherTest::failureLeavesNoBundle()
{
    const Ended result = runWithout(u"symlinks"_s);
    QCOMPARE(result.status, 1);
    const QString folder = path(u"home/.local/share/tessaro"_s);
    QVERIFY2(result.errors.startsWith("place: " + folder.toUtf8() + "/Tessaro.app/Contents/"),
             result.errors.constData());
    QVERIFY(result.errors.contains(": Operation not permitted"));
    QVERIFY(!QFile::exists(folder + u"/Tessaro.app"_s));
}

void LauncherTest::lockThatCannotBeMadeIsNamed()
{
    const QString lock = path(u"home/.local/share/tessaro/Tessaro.app/lock"_s);
    QVERIFY(QDir().mkpath(lock));
    QCOMPARE(run(home()).errors, "place: " + lock.toUtf8() + ": Is a directory, tools: \n");
}

void LauncherTest::fileSystemWithoutLocksHasOneBundle()
{
    QCOMPARE(runWithout(u"locks"_s).status, 7);
    QVERIFY(QFile::exists(own(u"MacOS/tessaro"_s)));
}

void LauncherTest::programThatCannotRunIsNamed()
{
    write(u"MacOS/tessaro"_s, "no program");
    const Ended result = run(home());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             "tessaro: " + own(u"MacOS/tessaro"_s).toUtf8() + ": Exec format error\n");
}

void LauncherTest::noexecIsNamed()
{
    if (geteuid() != 0)
        QSKIP("only root can mount a file system");
    QProcess process;
    process.setEnvironment(home() + QProcess::systemEnvironment().filter(u"PATH="_s));
    process.start(QStringLiteral(TESSARO_ON_IMAGE),
                  {u"tmpfs"_s, u"16,noexec"_s, path(u"home"_s), m_prefix + u"/bin/tessaro"_s});
    const Ended result = ended(process);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, "place: " + path(u"home/.local/share/tessaro/Tessaro.app"_s).toUtf8() +
                                ": noexec, tools: \n");
}

void LauncherTest::toolsThatAreNotSetUpArePassedOn()
{
    write(u"Resources/setup-error"_s, "there is no program convert: install the package.\n");
    const Ended result = run(home(), {u"--version"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("place: , tools: there is no program convert: install the package.\n"));
    QVERIFY(result.output.endsWith("|--version\n"));
}

QTEST_GUILESS_MAIN(LauncherTest)
#include "launcher_test.moc"
