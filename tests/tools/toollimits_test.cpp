// Limits on memory, stack and file sizes: the two programs work within them or fail with a
// sentence.

#include "toolbench.h"

#include <QHash>
#include <QMap>
#include <QTest>

using namespace Qt::StringLiterals;

class ToolLimitsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theRealToolHasTheUsualStack();
    void lackOfMemoryIsASentence();
    void anyLimitOnMemoryIsASentence();
    void smallStackIsEnough();
    void limitOnFileSizesIsAFailure();

private:
    QTemporaryDir m_folder;
};

void ToolLimitsTest::initTestCase()
{
    makeImage(m_folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, m_folder.path()).status, 0);
}

void ToolLimitsTest::theRealToolHasTheUsualStack()
{
    const ToolBundle bundle(shellTool(u"ulimit -s >&2; exit 1"_s));
    const RunResult result = runInShell(u"ulimit -S -s 65536"_s, bundle.tool(u"convert"_s),
                                        {u"in.pdf"_s, u"o.pdf"_s}, m_folder.path());
    QCOMPARE(result.errors, QByteArray("8192\n"));
}

void ToolLimitsTest::lackOfMemoryIsASentence()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    writeContent(folder.filePath(u"info"_s),
                 "InfoKey:Title\nInfoValue:" + QByteArray(15'000'000, 'x') + "\n");
    const RunResult result = runInShell(
        u"ulimit -v 70000"_s, bundledTool(u"pdftk"_s),
        {u"in.pdf"_s, u"update_info"_s, u"info"_s, u"output"_s, u"o.pdf"_s}, folder.path());
    QCOMPARE(result.errors, QByteArray("pdftk: not enough memory\n"));
    QCOMPARE(result.status, 1);
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"info"_s}));
}

// From what the loader of the libraries ends with to what is enough.
void ToolLimitsTest::anyLimitOnMemoryIsASentence()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.jpg"_s));
    QVERIFY(QFile::copy(m_folder.filePath(u"in.pdf"_s), folder.filePath(u"in.pdf"_s)));
    const QStringList names = {u"in.pdf"_s, u"x.jpg"_s};
    const QHash<QString, QStringList> calls = {
        {u"convert"_s, {u"x.jpg"_s, u"o.pdf"_s}},
        {u"pdftk"_s, {u"in.pdf"_s, u"output"_s, u"o.pdf"_s, u"user_pw"_s, u"a"_s}}};
    for (auto call = calls.begin(); call != calls.end(); ++call) {
        QMap<int, int> ends;
        for (int kilobytes = 10'000; kilobytes < 50'000; kilobytes += 400) {
            const RunResult result = runInShell(u"ulimit -v "_s + QString::number(kilobytes),
                                                bundledTool(call.key()), *call, folder.path());
            const bool made = QFile::remove(folder.filePath(u"o.pdf"_s));
            const bool loaded = !result.errors.contains("loading shared libraries");
            QVERIFY2(result.status == (made ? 0 : loaded ? 1 : 127), result.errors.constData());
            QCOMPARE(result.errors.count('\n'), made ? 0 : 1);
            QCOMPARE(namesIn(folder.path()), names);
            ++ends[result.status];
        }
        QCOMPARE(ends.keys(), QList<int>({0, 1, 127}));
    }
}

// ImageMagick needs more than that, and may be ended by the kernel.
void ToolLimitsTest::smallStackIsEnough()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.jpg"_s));
    const QStringList call = {u"x.jpg"_s, u"o.pdf"_s};
    const auto run = [&](const QStringList &options) {
        return runInShell(u"ulimit -s 64"_s, bundledTool(u"convert"_s), options + call,
                          folder.path());
    };
    QCOMPARE(run({}).errors, QByteArray());
    QCOMPARE(namesIn(folder.path()), QStringList({u"o.pdf"_s, u"x.jpg"_s}));
    const RunResult converted = run({u"-rotate"_s, u"90"_s});
    QCOMPARE(converted.errors.isEmpty(), converted.status == 0);
    QCOMPARE(namesIn(folder.path()), QStringList({u"o.pdf"_s, u"x.jpg"_s}));
}

// The kernel's answer to a file beyond the caller's limit is a signal that ends a program.
void ToolLimitsTest::limitOnFileSizesIsAFailure()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.jpg"_s));
    writeContent(folder.filePath(u"o.pdf"_s), "old");
    for (const QStringList &options : {QStringList(), QStringList{u"-rotate"_s, u"90"_s}}) {
        const RunResult result =
            runInShell(u"ulimit -f 0"_s, bundledTool(u"convert"_s),
                       options + QStringList{u"x.jpg"_s, u"o.pdf"_s}, folder.path());
        QCOMPARE(result.status, 1);
        QVERIFY(result.errors.endsWith('\n'));
        QCOMPARE(namesIn(folder.path()), QStringList({u"o.pdf"_s, u"x.jpg"_s}));
        QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("old"));
    }
}

QTEST_GUILESS_MAIN(ToolLimitsTest)
#include "toollimits_test.moc"
