// The command of an installation: the bundle that it readies for a user, and what it becomes.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

#include <sys/stat.h>

namespace {

using Variables = QStringList;

/// What is installed says how it was started; a change of `version` keeps its size.
QByteArray programText(char version)
{
    return QByteArray("#!/bin/sh\necho \"") + version + "|$PWD|$*\"\nexit 7\n";
}

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
    void noPlaceIsOneSentence_data();
    void noPlaceIsOneSentence();
    void toolsThatAreNotReadyAreTold();

private:
    void write(const QString &name, const QByteArray &content) const;
    std::unique_ptr<QProcess> start(const Variables &variables,
                                    const QStringList &words = {}) const;
    Ended run(const Variables &variables, const QStringList &words = {}) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString own(const QString &name) const
    {
        return path(QStringLiteral("home/.local/share/tessaro/Tessaro.app/Contents/") + name);
    }
    Variables home() const { return {QStringLiteral("HOME=") + path(QStringLiteral("home"))}; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_prefix;
};

void LauncherTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_prefix = path("a prefix");
    QVERIFY(QDir().mkpath(path("home")));
    QVERIFY(QDir().mkpath(m_prefix + "/bin"));
    QVERIFY(QFile::copy(TESSARO_LAUNCHER, m_prefix + "/bin/tessaro"));
    write("MacOS/tessaro", programText('1'));
    write("MacOS/convert", "convert");
    write("Plugins/platforms/libq.so", "plug-in");
    write("Resources/convert.tool", "tool");
}

void LauncherTest::write(const QString &name, const QByteArray &content) const
{
    const QString file = m_prefix + "/lib/tessaro/Tessaro.app/Contents/" + name;
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
    process->start(m_prefix + "/bin/tessaro", words);
    return process;
}

Ended LauncherTest::run(const Variables &variables, const QStringList &words) const
{
    return ended(*start(variables, words));
}

void LauncherTest::programIsACopyAndTheRestAreLinks()
{
    run(home());
    const QString installed = m_prefix + "/lib/tessaro/Tessaro.app/Contents/";
    QVERIFY(S_ISREG(statusOf(own("MacOS/tessaro")).st_mode));
    for (const char *link : {"MacOS/convert", "Plugins", "Resources"})
        QCOMPARE(QFile::symLinkTarget(own(link)), installed + link);
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(own("MacOS")).entryList(everything), QStringList({"convert", "tessaro"}));
    QCOMPARE(QDir(own("")).entryList(everything), QStringList({"MacOS", "Plugins", "Resources"}));
}

void LauncherTest::argumentsFolderAndStatusArePassedOn()
{
    const Ended result = run(home(), {"a b", "--help", ""});
    QCOMPARE(result.output, "1|" + m_folder->path().toUtf8() + "|a b --help \n");
    QCOMPARE(result.status, 7);
}

void LauncherTest::dataFolderIsTheUsers_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("folder");
    QTest::newRow("the home folder") << Variables{"HOME=%/home"} << "home/.local/share";
    QTest::newRow("a data folder")
        << Variables{"HOME=%/home", "XDG_DATA_HOME=%/my data"} << "my data";
    QTest::newRow("a data folder without a home") << Variables{"XDG_DATA_HOME=%/data"} << "data";
    QTest::newRow("an empty data folder")
        << Variables{"HOME=%/home", "XDG_DATA_HOME="} << "home/.local/share";
    QTest::newRow("a relative data folder")
        << Variables{"HOME=%/home", "XDG_DATA_HOME=data"} << "home/.local/share";
}

void LauncherTest::dataFolderIsTheUsers()
{
    QFETCH(Variables, variables);
    QFETCH(QString, folder);
    variables.replaceInStrings("%", m_folder->path());
    QCOMPARE(run(variables).status, 7);
    QVERIFY(QFile::exists(path(folder + "/tessaro/Tessaro.app/Contents/MacOS/tessaro")));
}

void LauncherTest::foldersAreForTheUserAlone()
{
    run(home());
    for (const char *name : {"home/.local", "home/.local/share/tessaro"})
        QCOMPARE(statusOf(path(name)).st_mode & 0777, mode_t(0700));
    QCOMPARE(statusOf(own("MacOS/tessaro")).st_mode & 0777, mode_t(0700));
}

void LauncherTest::secondStartTouchesNothing()
{
    const auto inodes = [this] {
        QList<ino_t> found;
        for (const char *name : {"MacOS/tessaro", "MacOS/convert", "Plugins", "Resources"})
            found << statusOf(own(name)).st_ino;
        return found;
    };
    run(home());
    const QList<ino_t> before = inodes();
    QCOMPARE(run(home()).status, 7);
    QCOMPARE(inodes(), before);
}

void LauncherTest::changesAreTakenOver_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("a new program of the same size") << "write installed";
    QTest::newRow("a damaged copy") << "write own";
    QTest::newRow("a copy that is cut off") << "cut own";
    QTest::newRow("a link in the copy's place") << "link own";
}

void LauncherTest::changesAreTakenOver()
{
    QFETCH(QString, change);
    run(home());
    const QString copy = own("MacOS/tessaro");
    if (change == "write installed")
        write("MacOS/tessaro", programText('2'));
    else if (change == "write own")
        QVERIFY(QFile::remove(copy) && QFile::copy("/bin/true", copy));
    else if (change == "cut own")
        QVERIFY(QFile::resize(copy, 10));
    else
        QVERIFY(QFile::remove(copy) &&
                QFile::link(m_prefix + "/lib/tessaro/Tessaro.app/Contents/MacOS/tessaro", copy));
    const char *version = change == "write installed" ? "2|" : "1|";
    QVERIFY(run(home()).output.startsWith(version));
    QVERIFY(S_ISREG(statusOf(copy).st_mode));
}

void LauncherTest::anotherPlaceIsTakenOver()
{
    run(home());
    const QString moved = path("elsewhere");
    QVERIFY(QDir().rename(m_prefix, moved));
    m_prefix = moved;
    QCOMPARE(run(home()).status, 7);
    QCOMPARE(QFile::symLinkTarget(own("Plugins")),
             moved + "/lib/tessaro/Tessaro.app/Contents/Plugins");
}

void LauncherTest::startsAtOnceAllSucceed()
{
    for (const char version : {'1', '2'}) {
        write("MacOS/tessaro", programText(version) + QByteArray(1'000'000, '\n'));
        std::vector<std::unique_ptr<QProcess>> starts;
        for (int i = 0; i < 20; ++i)
            starts.push_back(start(home()));
        for (const auto &process : starts) {
            const Ended result = ended(*process);
            QCOMPARE(result.errors, QByteArray());
            QVERIFY(result.output.startsWith(version));
        }
    }
    QCOMPARE(QDir(own("MacOS")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({"convert", "tessaro"}));
}

void LauncherTest::noPlaceIsOneSentence_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("sentence");
    const QString needs = " It needs a folder of its own in XDG_DATA_HOME or ~/.local/share.\n";
    const QString cannot = "tessaro: cannot ready the program for this user: ";
    QTest::newRow("no home") << Variables()
                             << "tessaro: there is no home folder: HOME is not set to an "
                                "absolute path.\n";
    QTest::newRow("a home that is a file")
        << Variables{"HOME=/bin/true"} << cannot + "/bin/true/.local: Not a directory." + needs;
    QTest::newRow("a home that cannot be written")
        << Variables{"HOME=/proc"} << cannot + "/proc/.local: No such file or directory." + needs;
}

void LauncherTest::noPlaceIsOneSentence()
{
    QFETCH(Variables, variables);
    const Ended result = run(variables);
    QCOMPARE(result.status, 1);
    QTEST(QString::fromUtf8(result.errors), "sentence");
    QCOMPARE(result.output, QByteArray());
}

void LauncherTest::toolsThatAreNotReadyAreTold()
{
    write("Resources/failure", "there is no program convert: install the package.\n");
    const Ended result = run(home());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("tessaro: there is no program convert: install the package.\n"));
}

QTEST_GUILESS_MAIN(LauncherTest)
#include "launcher_test.moc"
