// What the command of an installation reports when it cannot set up a bundle or execute the
// program.

#include "launcherfixture.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

class LauncherFailuresTest : public LauncherFixture
{
    Q_OBJECT

private slots:
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
    /// With system calls refused: tests/support/withoutcalls.cpp.
    Ended runWithout(const QString &calls) const;
};

Ended LauncherFailuresTest::runWithout(const QString &calls) const
{
    QProcess process;
    process.setEnvironment(home());
    process.start(QStringLiteral(TESSARO_WITHOUTCALLS), {calls, m_prefix + u"/bin/tessaro"_s});
    return ended(process);
}

void LauncherFailuresTest::failuresArePassedOn_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("failure");
    QTest::newRow("no home") << Variables() << u"HOME: No such file or directory"_s;
    QTest::newRow("a home that is a file")
        << Variables{u"HOME=/bin/true"_s} << u"/bin/true/.local: Not a directory"_s;
    QTest::newRow("a home that cannot be written")
        << Variables{u"HOME=/proc"_s} << u"/proc/.local: No such file or directory"_s;
}

void LauncherFailuresTest::failuresArePassedOn()
{
    QFETCH(Variables, variables);
    QFETCH(QString, failure);
    const Ended result = run(variables, {u"--help"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(QString::fromUtf8(result.errors), u"place: %1, tools: \n"_s.arg(failure));
    QVERIFY(result.output.endsWith("|--help\n")); // which the program answers
}

void LauncherFailuresTest::failureWithoutAProgramIsPrinted()
{
    QVERIFY(QFile::remove(m_prefix + u"/lib/tessaro/Tessaro.app/Contents/MacOS/tessaro"_s));
    const Ended result = run({});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("tessaro: HOME: No such file or directory\n"));
}

void LauncherFailuresTest::failureLeavesNoBundle()
{
    const Ended result = runWithout(u"symlinks"_s);
    QCOMPARE(result.status, 1);
    const QString folder = path(u"home/.local/share/tessaro"_s);
    QVERIFY2(result.errors.startsWith("place: " + folder.toUtf8() + "/Tessaro.app/Contents/"),
             result.errors.constData());
    QVERIFY(result.errors.contains(": Operation not permitted"));
    QVERIFY(!QFile::exists(folder + u"/Tessaro.app"_s));
}

void LauncherFailuresTest::lockThatCannotBeMadeIsNamed()
{
    const QString lock = path(u"home/.local/share/tessaro/Tessaro.app/lock"_s);
    QVERIFY(QDir().mkpath(lock));
    QCOMPARE(run(home()).errors, "place: " + lock.toUtf8() + ": Is a directory, tools: \n");
}

void LauncherFailuresTest::fileSystemWithoutLocksHasOneBundle()
{
    QCOMPARE(runWithout(u"locks"_s).status, 7);
    QVERIFY(QFile::exists(own(u"MacOS/tessaro"_s)));
}

void LauncherFailuresTest::programThatCannotRunIsNamed()
{
    write(u"MacOS/tessaro"_s, "no program");
    const Ended result = run(home());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             "tessaro: " + own(u"MacOS/tessaro"_s).toUtf8() + ": Exec format error\n");
}

void LauncherFailuresTest::noexecIsNamed()
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

void LauncherFailuresTest::toolsThatAreNotSetUpArePassedOn()
{
    write(u"Resources/setup-error"_s, "there is no program convert: install the package.\n");
    const Ended result = run(home(), {u"--version"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("place: , tools: there is no program convert: install the package.\n"));
    QVERIFY(result.output.endsWith("|--version\n"));
}

QTEST_GUILESS_MAIN(LauncherFailuresTest)
#include "launcher_failures_test.moc"
