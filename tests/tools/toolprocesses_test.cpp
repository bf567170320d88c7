#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

/// Signals and endings: the real tool never outlives ours, and what is left over is cleared away.
class ToolProcesses : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void signalsArePassedOnAndCleanedUpAfter_data();
    void signalsArePassedOnAndCleanedUpAfter();
    void signalsReachAToolThatIgnoresThem();
    void realConvertStopsOnASignal();
    void killedProgramTakesTheJvmAlong();
    void killedProgramTakesConvertAlong();
    void killedProgramTakesAnyToolAlong();
    void killedProgramsLeftoversAreTakenOver();
    void foreignFoldersAreLeftAlone();
    void privateFolderIsForTheUserAlone();
    void tenPdftkCallsAtOnceInOneFolder();

private:
    QTemporaryDir m_folder;
};

namespace {

// The processes whose arguments contain `word`, zombies (which have none) left out.
QList<pid_t> processesWith(const QByteArray &word)
{
    QList<pid_t> found;
    for (const QString &process : QDir("/proc").entryList(QDir::Dirs)) {
        if (process.toInt() > 0 && contentOf("/proc/" + process + "/cmdline").contains(word))
            found.append(process.toInt());
    }
    return found;
}

pid_t pidOf(const QProcess &process)
{
    return static_cast<pid_t>(process.processId());
}

// A word that no other process on the machine has, another run of this test included.
QString ownWord(const QString &word)
{
    return word + QString::number(QCoreApplication::applicationPid());
}

} // namespace

void ToolProcesses::initTestCase()
{
    makeImage(m_folder.filePath("page.jpg"), {2480, 3508});
    makeImage(m_folder.filePath("x.png"));
    QCOMPARE(runBundled("convert", {"x.png", "in.pdf"}, m_folder.path()).status, 0);
}

void ToolProcesses::signalsArePassedOnAndCleanedUpAfter_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void ToolProcesses::signalsArePassedOnAndCleanedUpAfter()
{
    QFETCH(int, signal);
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    writeContent(folder.filePath("o.pdf"), "older");
    const QStringList tool =
        shellTool("for s in TERM INT HUP; do trap \"echo $s >../got; exit 7\" $s; done; "
                  "touch ../started; while :; do sleep 0.05; done");
    const ToolBundle bundle(tool, tool);
    const auto call =
        startProgram(bundle.tool("pdftk"), {"in.pdf", "output", "o.pdf"}, folder.path());
    QTRY_VERIFY(QFile::exists(folder.filePath("started")));
    kill(pidOf(*call), signal);
    QVERIFY(call->waitForFinished());
    QCOMPARE(call->exitCode(), 7);
    QCOMPARE(contentOf(folder.filePath("got")).trimmed(),
             QByteArray(QTest::currentDataTag()).mid(3));
    QCOMPARE(contentOf(folder.filePath("o.pdf")), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), QStringList({"got", "in.pdf", "o.pdf", "started"}));
}

void ToolProcesses::signalsReachAToolThatIgnoresThem()
{
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    const QStringList tool =
        shellTool("trap '' TERM; touch ../started; while :; do sleep 0.05; done");
    const ToolBundle bundle(tool, tool);
    const auto call =
        startProgram(bundle.tool("pdftk"), {"in.pdf", "output", "o.pdf"}, folder.path());
    QTRY_VERIFY(QFile::exists(folder.filePath("started")));
    kill(pidOf(*call), SIGTERM);
    QVERIFY(call->waitForFinished());
    QCOMPARE(call->exitCode(), 1);
    QCOMPARE(call->readAllStandardError(), QByteArray("ended by signal 9\n"));
    QCOMPARE(namesIn(folder.path()), QStringList({"in.pdf", "started"}));
}

void ToolProcesses::realConvertStopsOnASignal()
{
    const QString result = ownWord("signalled") + ".pdf";
    const QTemporaryDir folder, pixels;
    QStringList arguments(100, m_folder.filePath("page.jpg"));
    const auto call = startProgram(bundledTool("convert"), arguments << result, folder.path(),
                                   {{"TMPDIR", pixels.path()}});
    QTRY_VERIFY(processesWith("./" + result.toUtf8()).size() == 1);
    kill(pidOf(*call), SIGTERM);
    QVERIFY(call->waitForFinished());
    QVERIFY(call->exitCode() > 0);
    QCOMPARE(processesWith("./" + result.toUtf8()), QList<pid_t>());
    QCOMPARE(namesIn(folder.path()), QStringList());
    QCOMPARE(namesIn(pixels.path()), QStringList());
}

void ToolProcesses::killedProgramTakesTheJvmAlong()
{
    const QString result = ownWord("killed-jvm") + ".pdf";
    const auto call =
        startProgram(bundledTool("pdftk"), {"in.pdf", "output", result}, m_folder.path());
    pid_t jvm = 0;
    QTRY_VERIFY_WITH_TIMEOUT((jvm = processesWith("./" + result.toUtf8()).value(0)) > 0, 20'000);
    // Stopped, it cannot end by having done its work.
    kill(jvm, SIGSTOP);
    kill(pidOf(*call), SIGKILL);
    QVERIFY(call->waitForFinished());
    QTRY_COMPARE(processesWith("./" + result.toUtf8()), QList<pid_t>());
    QVERIFY(!QFile::exists(m_folder.filePath(result)));
}

void ToolProcesses::killedProgramTakesConvertAlong()
{
    const QString result = ownWord("killed-convert") + ".pdf";
    const QTemporaryDir folder, pixels;
    QStringList arguments(100, m_folder.filePath("page.jpg"));
    const auto call = startProgram(bundledTool("convert"), arguments << result, folder.path(),
                                   {{"TMPDIR", pixels.path()}});
    QTRY_VERIFY(processesWith("./" + result.toUtf8()).size() == 1);
    kill(pidOf(*call), SIGKILL);
    QVERIFY(call->waitForFinished());
    QTRY_COMPARE(processesWith("./" + result.toUtf8()), QList<pid_t>());
    QCOMPARE(namesIn(pixels.filePath(".tessaro-1")), QStringList());
}

void ToolProcesses::killedProgramTakesAnyToolAlong()
{
    const QString word = ownWord("1000");
    const QStringList tool = shellTool("exec sleep " + word);
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    for (const auto &[program, arguments] :
         {std::pair("convert", QStringList{"in.pdf", "o.pdf"}),
          std::pair("pdftk", QStringList{"in.pdf", "output", "o.pdf"})}) {
        const auto call = startProgram(bundle.tool(program), arguments, folder.path());
        const QByteArray sleeping = QByteArray("sleep\0", 6) + word.toUtf8();
        QTRY_VERIFY(processesWith(sleeping).size() == 1);
        kill(pidOf(*call), SIGKILL);
        QVERIFY(call->waitForFinished());
        QTRY_COMPARE(processesWith(sleeping), QList<pid_t>());
    }
}

void ToolProcesses::killedProgramsLeftoversAreTakenOver()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    QDir(folder.path()).mkdir(".tessaro-1");
    writeContent(folder.filePath(".tessaro-1/o.pdf"), "left over");
    writeContent(folder.filePath(".tessaro-1/input-1"), "left over");
    const RunResult result = runBundled("pdftk", {"in.pdf", "output", "o.pdf"}, folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(namesIn(folder.path()), QStringList({"in.pdf", "o.pdf"}));
    QCOMPARE(readPdf(folder.filePath("o.pdf")).pages, 1);
}

// One that is in use, and a symbolic link of our name that leads elsewhere.
void ToolProcesses::foreignFoldersAreLeftAlone()
{
    const QTemporaryDir folder, elsewhere;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    QDir(folder.path()).mkdir(".tessaro-1");
    writeContent(folder.filePath(".tessaro-1/work"), "another call's");
    writeContent(elsewhere.filePath("work"), "another user's");
    QFile::link(elsewhere.path(), folder.filePath(".tessaro-2"));
    const int lock = open(QFile::encodeName(folder.filePath(".tessaro-1")).constData(),
                          O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(flock(lock, LOCK_EX), 0);
    const RunResult result = runBundled("pdftk", {"in.pdf", "output", "o.pdf"}, folder.path());
    close(lock);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(contentOf(folder.filePath(".tessaro-1/work")), QByteArray("another call's"));
    QCOMPARE(contentOf(elsewhere.filePath("work")), QByteArray("another user's"));
    QCOMPARE(namesIn(folder.path()), QStringList({".tessaro-1", ".tessaro-2", "in.pdf", "o.pdf"}));
}

void ToolProcesses::privateFolderIsForTheUserAlone()
{
    const QStringList tool = shellTool("stat -c '%a' . >&2; exit 1");
    const ToolBundle bundle(tool, tool);
    const RunResult result =
        runProgram(bundle.tool("pdftk"), {"in.pdf", "output", "o.pdf"}, m_folder.path());
    QCOMPARE(result.errors, QByteArray("700\n"));
}

void ToolProcesses::tenPdftkCallsAtOnceInOneFolder()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath("in.pdf"), folder.filePath("in.pdf")));
    QStringList expected = {"in.pdf"};
    std::vector<std::unique_ptr<QProcess>> calls;
    calls.reserve(10);
    for (int i = 0; i < 10; ++i) {
        const QString name = "o" + QString::number(i) + ".pdf";
        expected.append(name);
        calls.push_back(startProgram(bundledTool("pdftk"),
                                     {"in.pdf", "output", name, "owner_pw", "a", "user_pw", "b"},
                                     folder.path()));
    }
    for (const auto &call : calls) {
        QVERIFY(call->waitForFinished(120'000));
        QCOMPARE(call->readAllStandardError(), QByteArray());
    }
    QCOMPARE(namesIn(folder.path()), expected);
    for (const QString &name : expected.mid(1))
        QVERIFY(!readPdf(folder.filePath(name), "b").needsPassword);
}

QTEST_GUILESS_MAIN(ToolProcesses)
#include "toolprocesses_test.moc"
