// Signals and ends of processes: the real tool never outlives ours.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <csignal>

#include <unistd.h>

using namespace Qt::StringLiterals;

class ToolProcessesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void signalsArePassedOnAndCleanedUpAfter_data();
    void signalsArePassedOnAndCleanedUpAfter();
    void signalsReachAToolThatIgnoresThem();
    void signalAfterTheWorkKeepsTheOlderPdf();
    void pdftkEndsOnASignal_data();
    void pdftkEndsOnASignal();
    void ignoredSignalsStayIgnored();
    void closedStreamsChangeNothing_data();
    void closedStreamsChangeNothing();
    void noCoreIsDumped();
    void realConvertStopsOnASignal();
    void killedProgramTakesConvertAlong();
    void failureEndsThoseAtWork();
    void killedProgramTakesAnyToolAlong();

private:
    std::unique_ptr<QProcess> startConverting(const QString &folder, const QString &pixels) const;

    QTemporaryDir m_folder;
};

namespace {

const QStringList converting = {u"in.pdf"_s, u"o.pdf"_s};

pid_t pidOf(const QProcess &process)
{
    return static_cast<pid_t>(process.processId());
}

QList<qint64> childrenOf(qint64 process)
{
    const QString pid = QString::number(process);
    QList<qint64> children;
    for (const QByteArray &child :
         contentOf(u"/proc/"_s + pid + u"/task/"_s + pid + u"/children"_s).split(' ')) {
        if (child.trimmed().toInt() > 0)
            children.append(child.trimmed().toInt());
    }
    return children;
}

// The real tools at work: children of the process that the call confines.
QList<pid_t> toolsOf(const QProcess &call)
{
    QList<pid_t> tools;
    for (const qint64 confined : childrenOf(call.processId())) {
        for (const qint64 tool : childrenOf(confined))
            tools.append(static_cast<pid_t>(tool));
    }
    return tools;
}

// Real tools that a call runs side by side, at the least.
int concurrency()
{
    return std::min(QThread::idealThreadCount(), 2);
}

bool haveEnded(const QList<pid_t> &processes)
{
    return std::ranges::all_of(processes, [](pid_t process) {
        return contentOf(u"/proc/"_s + QString::number(process) + u"/cmdline"_s).isEmpty();
    });
}

// A word that no other process on the machine has, another run of this test included.
QString ownWord(const QString &word)
{
    return word + QString::number(QCoreApplication::applicationPid());
}

} // namespace

// Work for much longer than any test waits.
std::unique_ptr<QProcess> ToolProcessesTest::startConverting(const QString &folder,
                                                             const QString &pixels) const
{
    const QStringList pages(100, m_folder.filePath(u"page.jpg"_s));
    return startProgram(bundledTool(u"convert"_s),
                        QStringList{u"-rotate"_s, u"90"_s} + pages + QStringList{u"o.pdf"_s},
                        folder, {{u"TMPDIR"_s, pixels}});
}

void ToolProcessesTest::initTestCase()
{
    makeImage(m_folder.filePath(u"page.jpg"_s), {2480, 3508});
    makeImage(m_folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, m_folder.path()).status, 0);
}

void ToolProcessesTest::signalsArePassedOnAndCleanedUpAfter_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGQUIT") << SIGQUIT;
    QTest::newRow("SIGALRM") << SIGALRM;
    QTest::newRow("SIGUSR1") << SIGUSR1;
    QTest::newRow("SIGUSR2") << SIGUSR2;
}

void ToolProcessesTest::signalsArePassedOnAndCleanedUpAfter()
{
    QFETCH(int, signal);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const ToolBundle bundle(shellTool(u"for s in TERM INT HUP QUIT ALRM USR1 USR2; do trap \"echo "
                                      u"$s >../../got; exit 7\" $s; done; "
                                      "touch ../../started; while :; do sleep 0.05; done"_s));
    const auto call = startProgram(bundle.tool(u"convert"_s), converting, folder.path());
    QTRY_VERIFY(QFile::exists(folder.filePath(u"started"_s)));
    kill(pidOf(*call), signal);
    QVERIFY(call->waitForFinished());
    QCOMPARE(call->exitCode(), 7);
    QCOMPARE(contentOf(folder.filePath(u"got"_s)).trimmed(),
             QByteArray(QTest::currentDataTag()).mid(3));
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()),
             QStringList({u"got"_s, u"in.pdf"_s, u"o.pdf"_s, u"started"_s}));
}

void ToolProcessesTest::pdftkEndsOnASignal_data()
{
    signalsArePassedOnAndCleanedUpAfter_data();
}

// In the middle of gigabytes, most of which are a hole in the file.
void ToolProcessesTest::pdftkEndsOnASignal()
{
    QFETCH(int, signal);
    const QTemporaryDir folder;
    makeLargePdf(folder.filePath(u"in.pdf"_s));
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const auto call =
        startProgram(bundledTool(u"pdftk"_s),
                     {u"in.pdf"_s, u"output"_s, u"o.pdf"_s, u"user_pw"_s, u"a"_s}, folder.path());
    QTRY_VERIFY(isWriting(folder.path()));
    kill(pidOf(*call), signal);
    QVERIFY(call->waitForFinished());
    QCOMPARE(call->exitCode(), 1);
    QCOMPARE(call->readAllStandardError(), "ended by signal " + QByteArray::number(signal) + "\n");
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"o.pdf"_s}));
}

// Sent again and again, so that a signal that put the end off would do so for ever.
void ToolProcessesTest::signalsReachAToolThatIgnoresThem()
{
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const ToolBundle bundle(
        shellTool(u"trap '' TERM; touch ../../started; while :; do sleep 0.05; done"_s));
    const auto call = startProgram(bundle.tool(u"convert"_s), converting, folder.path());
    QTRY_VERIFY(QFile::exists(folder.filePath(u"started"_s)));
    const pid_t pid = pidOf(*call);
    QTRY_VERIFY_WITH_TIMEOUT((kill(pid, SIGTERM), call->state() == QProcess::NotRunning), 60'000);
    QCOMPARE(call->exitCode(), 1);
    QCOMPARE(call->readAllStandardError(), QByteArray("ended by signal 9\n"));
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"started"_s}));
}

// The work ends while the program is stopped, so that it finds the end and the signal together.
void ToolProcessesTest::signalAfterTheWorkKeepsTheOlderPdf()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const ToolBundle bundle(shellTool(u"cp ../../in.pdf page.pdf; touch ../../started; "
                                      "while ! [ -e ../../go ]; do sleep 0.05; done"_s));
    const auto call = startProgram(bundle.tool(u"convert"_s), converting, folder.path());
    QTRY_VERIFY(QFile::exists(folder.filePath(u"started"_s)));
    const auto confined = static_cast<pid_t>(childrenOf(call->processId()).value(0));
    kill(pidOf(*call), SIGSTOP);
    writeContent(folder.filePath(u"go"_s), "");
    QTRY_VERIFY(haveEnded({confined}));
    kill(pidOf(*call), SIGTERM);
    kill(pidOf(*call), SIGCONT);
    QVERIFY(call->waitForFinished());
    QCOMPARE(call->readAllStandardError(), QByteArray("ended by signal 15\n"));
    QCOMPARE(call->exitCode(), 1);
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("older"));
}

// By the real tool, which sends them to itself, and by ours, which must not even wait for them.
void ToolProcessesTest::ignoredSignalsStayIgnored()
{
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const ToolBundle bundle(shellTool(u"for s in HUP INT QUIT; do kill -$s $$; done; "
                                      "sed -n 's/SigBlk://p' /proc/$PPID/status >&2; exit 5"_s));
    const RunResult result =
        runInShell(u"trap '' HUP INT QUIT"_s, bundle.tool(u"convert"_s), converting, folder.path());
    QCOMPARE(result.status, 5);
    const quint64 waitedFor = result.errors.trimmed().toULongLong(nullptr, 16);
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT})
        QVERIFY(!(waitedFor >> (signal - 1) & 1));
    QVERIFY(waitedFor >> (SIGTERM - 1) & 1);
}

void ToolProcessesTest::closedStreamsChangeNothing_data()
{
    QTest::addColumn<QString>("closing");
    QTest::newRow("standard input") << "exec <&-";
    QTest::newRow("standard input and output") << "exec <&- >&-";
    QTest::newRow("standard output and errors") << "exec >&- 2>&-";
    QTest::newRow("all three") << "exec <&- >&- 2>&-";
}

void ToolProcessesTest::closedStreamsChangeNothing()
{
    QFETCH(QString, closing);
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"x.png"_s), folder.filePath(u"x.png"_s)));
    QCOMPARE(runInShell(closing, bundledTool(u"convert"_s), {u"x.png"_s, u"o.pdf"_s}, folder.path())
                 .status,
             0);
    QCOMPARE(runInShell(closing, bundledTool(u"pdftk"_s),
                        {u"o.pdf"_s, u"output"_s, u"o-1.pdf"_s, u"owner_pw"_s, u"a"_s, u"user_pw"_s,
                         u"b"_s},
                        folder.path())
                 .status,
             0);
    QVERIFY(!readPdf(folder.filePath(u"o-1.pdf"_s), "b").needsPassword);
    QCOMPARE(namesIn(folder.path()), QStringList({u"o-1.pdf"_s, u"o.pdf"_s, u"x.png"_s}));
}

// Of ours and of the real tool. One byte means to Linux that no program is given the core either.
void ToolProcessesTest::noCoreIsDumped()
{
    const ToolBundle bundle(
        shellTool(u"grep -h 'core file' /proc/$PPID/limits /proc/self/limits >&2; exit 1"_s));
    const RunResult result = runInShell(u"ulimit -c unlimited 2>/dev/null"_s,
                                        bundle.tool(u"convert"_s), converting, m_folder.path());
    QCOMPARE(result.errors.simplified(),
             QByteArray("Max core file size 1 1 bytes Max core file size 1 1 bytes"));
}

void ToolProcessesTest::realConvertStopsOnASignal()
{
    const QTemporaryDir folder, pixels;
    const auto call = startConverting(folder.path(), pixels.path());
    QList<pid_t> children;
    QTRY_VERIFY((children = toolsOf(*call)).size() >= concurrency());
    kill(pidOf(*call), SIGTERM);
    QVERIFY(call->waitForFinished());
    QVERIFY(call->exitCode() > 0);
    QVERIFY(haveEnded(children));
    QCOMPARE(namesIn(folder.path()), QStringList());
    QCOMPARE(namesIn(pixels.path()), QStringList());
}

void ToolProcessesTest::killedProgramTakesConvertAlong()
{
    const QTemporaryDir folder, pixels;
    const auto call = startConverting(folder.path(), pixels.path());
    QList<pid_t> children;
    QTRY_VERIFY((children = toolsOf(*call)).size() >= concurrency());
    kill(pidOf(*call), SIGKILL);
    QVERIFY(call->waitForFinished());
    QTRY_VERIFY(haveEnded(children));
    const QStringList left = namesIn(pixels.path());
    QCOMPARE(left.size(), 1);
    // The folders of the runs stay until the next call; pixels do not.
    const QStringList runs =
        QDir(pixels.filePath(left.first())).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!runs.isEmpty());
    for (const QString &run : runs)
        QTRY_COMPARE(namesIn(pixels.filePath(left.first() + u'/' + run)), QStringList());
}

// An image that is not whole is found while others are being converted. What the other tool has
// started does not outlive it, nor does either end by itself.
void ToolProcessesTest::failureEndsThoseAtWork()
{
    const QString word = ownWord(u"60."_s);
    const ToolBundle bundle(
        shellTool(u"case $1 in *input-1*) sleep "_s + word +
                  u" & touch ../../asleep; wait; touch ../../slept; exit;; esac; "
                  "while ! [ -e ../../asleep ]; do sleep 0.05; done; exit 9"_s));
    if (concurrency() < 2)
        QSKIP("one core runs one tool at a time");
    const QTemporaryDir folder;
    for (const QString &name : {u"1"_s, u"2"_s})
        writeContent(folder.filePath(name), "content");
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s), {u"1"_s, u"2"_s, u"o.pdf"_s}, folder.path());
    QCOMPARE(result.status, 9);
    QCOMPARE(processesWith(QByteArray("sleep\0", 6) + word.toUtf8()), QList<pid_t>());
    QCOMPARE(namesIn(folder.path()), QStringList({u"1"_s, u"2"_s, u"asleep"_s}));
}

void ToolProcessesTest::killedProgramTakesAnyToolAlong()
{
    const QString word = ownWord(u"1000"_s);
    const QStringList tool = shellTool(u"exec sleep "_s + word);
    const ToolBundle bundle(tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const auto call = startProgram(bundle.tool(u"convert"_s), converting, folder.path());
    const QByteArray sleeping = QByteArray("sleep\0", 6) + word.toUtf8();
    QTRY_VERIFY(processesWith(sleeping).size() == 1);
    kill(pidOf(*call), SIGKILL);
    QVERIFY(call->waitForFinished());
    QTRY_COMPARE(processesWith(sleeping), QList<pid_t>());
}

QTEST_GUILESS_MAIN(ToolProcessesTest)
#include "toolprocesses_test.moc"
