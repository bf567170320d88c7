// What the two programs make of a real tool that fails, in ways that the real ones only show on
// bad days: a shell script takes its place.

#include "toolbench.h"

#include <QDir>
#include <QTest>

class ToolFailures : public QObject
{
    Q_OBJECT

private slots:
    void failureIsPassedOn_data();
    void failureIsPassedOn();
    void successIsQuiet();
    void noiseIsBounded();
    void realToolSeesPlainNames();
    void realToolSeesACleanEnvironment();
    void missingConfigurationIsNamed();
    void missingRealToolIsNamed();
    void onlyReadableFolderIsNamed();
};

namespace {

// The same script for both programs: RESULT stands for what each of them has to write.
ToolBundle bundleOf(QString script)
{
    const auto tool = [&script](const char *result) {
        return shellTool(QString(script).replace("RESULT", result));
    };
    return {tool("page-1"), tool("result.pdf")};
}

QStringList callOf(const QString &program)
{
    return program == "convert" ? QStringList{"in.pdf", "o.pdf"}
                                : QStringList{"in.pdf", "output", "o.pdf"};
}

} // namespace

void ToolFailures::failureIsPassedOn_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("exits 3 and says why") << "echo why >&2; exit 3" << 3 << QByteArray("why\n");
    QTest::newRow("exits 1 with half a result") << "echo half >RESULT; exit 1" << 1 << QByteArray();
    QTest::newRow("exits 1 with a whole result")
        << "printf '%%PDF-1.4\\n%%%%EOF\\n' >RESULT; exit 1" << 1 << QByteArray();
    QTest::newRow("exits 0 without a result")
        << "exit 0" << 1 << QByteArray("the tool reported success but left no whole PDF\n");
    QTest::newRow("exits 0 with an empty result")
        << ": >RESULT" << 1 << QByteArray("the tool reported success but left no whole PDF\n");
    QTest::newRow("exits 0 with a result that breaks off")
        << "printf '%%PDF-1.4\\n' >RESULT" << 1
        << QByteArray("the tool reported success but left no whole PDF\n");
    QTest::newRow("exits 0 with a link for a result")
        << "ln -s /etc/passwd RESULT" << 1
        << QByteArray("the tool reported success but left no whole PDF\n");
    QTest::newRow("ends itself by a signal")
        << "kill -SEGV $$" << 1 << QByteArray("ended by signal 11\n");
}

void ToolFailures::failureIsPassedOn()
{
    QFETCH(QString, script);
    QFETCH(int, status);
    QFETCH(QByteArray, errors);
    const ToolBundle bundle = bundleOf(script);
    const QTemporaryDir pixels;
    for (const char *program : {"convert", "pdftk"}) {
        const QTemporaryDir folder;
        writeContent(folder.filePath("in.pdf"), "in");
        writeContent(folder.filePath("o.pdf"), "older");
        const RunResult result = runProgram(bundle.tool(program), callOf(program), folder.path(),
                                            {{"TMPDIR", pixels.path()}});
        QCOMPARE(result.status, status);
        QCOMPARE(result.errors, errors);
        QCOMPARE(contentOf(folder.filePath("o.pdf")), QByteArray("older"));
        QCOMPARE(namesIn(folder.path()), QStringList({"in.pdf", "o.pdf"}));
        QCOMPARE(namesIn(pixels.path()), QStringList());
    }
}

void ToolFailures::successIsQuiet()
{
    const ToolBundle bundle = bundleOf("echo warning; echo warning >&2; cp ../in.pdf RESULT");
    for (const char *program : {"convert", "pdftk"}) {
        const QTemporaryDir folder;
        makeImage(folder.filePath("x.png"));
        QCOMPARE(runBundled("convert", {"x.png", "in.pdf"}, folder.path()).status, 0);
        QFile::remove(folder.filePath("x.png"));
        const RunResult result = runProgram(bundle.tool(program), callOf(program), folder.path());
        QCOMPARE(result.status, 0);
        QCOMPARE(result.output + result.errors, QByteArray());
        QCOMPARE(namesIn(folder.path()), QStringList({"in.pdf", "o.pdf"}));
    }
}

void ToolFailures::noiseIsBounded()
{
    const QStringList tool =
        shellTool("head -c 50000000 /dev/zero; head -c 50000000 /dev/zero >&2; exit 4");
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    const RunResult result = runProgram(bundle.tool("convert"), callOf("convert"), folder.path());
    QCOMPARE(result.status, 4);
    QCOMPARE(result.output.size(), 256 * 1024);
    QCOMPARE(result.errors.size(), 256 * 1024);
}

void ToolFailures::realToolSeesPlainNames()
{
    const QStringList tool = shellTool("echo \"$@\" >&2; cat input-1.png >&2; exit 1");
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath("a %d[0].png"), "content\n");
    const RunResult result = runProgram(bundle.tool("convert"),
                                        {"-rotate", "90", "a %d[0].png", "-5%.pdf"}, folder.path());
    // The tool was given "input-1.png"; the name is put back.
    QCOMPARE(result.errors, QByteArray("-rotate 90 a %d[0].png +profile !icc,!icm,* +set comment "
                                       "+set label pdf:page-1\ncontent\n"));
}

void ToolFailures::realToolSeesACleanEnvironment()
{
    const QStringList tool = shellTool("env | sort >&2; exit 1");
    const ToolBundle bundle(tool, tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    const Variables variables = {{"MAGICK_CODER_MODULE_PATH", "/evil"},
                                 {"LC_MESSAGES", "de_DE"},
                                 {"LANGUAGE", "de"},
                                 {"_JAVA_OPTIONS", "-evil"},
                                 {"JAVA_TOOL_OPTIONS", "-evil"},
                                 {"HOME", "/evil"},
                                 {"KEPT", "this"}};
    for (const char *program : {"convert", "pdftk"}) {
        const QByteArray environment =
            runProgram(bundle.tool(program), callOf(program), folder.path(), variables).errors;
        QVERIFY(!environment.contains("evil"));
        QVERIFY(!environment.contains("de_DE"));
        QVERIFY(environment.contains("KEPT=this\n"));
        QVERIFY(environment.contains("LC_ALL=C.UTF-8\n"));
    }
}

void ToolFailures::missingConfigurationIsNamed()
{
    const ToolBundle bundle({}, {});
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    for (const char *program : {"convert", "pdftk"}) {
        const RunResult result = runProgram(bundle.tool(program), callOf(program), folder.path());
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors, QString("%1: cannot read '%2/Resources/%1.tool'; run "
                                        "packaging/assemble-tools again\n")
                                    .arg(program, bundle.contents())
                                    .toUtf8());
    }
}

void ToolFailures::missingRealToolIsNamed()
{
    const ToolBundle bundle({"/no/such/tool"}, {"/no/such/tool"});
    const QTemporaryDir folder;
    writeContent(folder.filePath("in.pdf"), "in");
    const RunResult result = runProgram(bundle.tool("pdftk"), callOf("pdftk"), folder.path());
    QCOMPARE(result.status, 127);
    QCOMPARE(result.errors,
             QByteArray("cannot start '/no/such/tool': No such file or directory\n"));
    QCOMPARE(namesIn(folder.path()), QStringList{"in.pdf"});
}

// /proc takes no new folder from anybody, root included.
void ToolFailures::onlyReadableFolderIsNamed()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"));
    const RunResult result = runBundled("convert", {"x.png", "/proc/o.pdf"}, folder.path());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith("convert: cannot make a folder in '/proc'"),
             result.errors.constData());
}

QTEST_GUILESS_MAIN(ToolFailures)
#include "toolfailures_test.moc"
