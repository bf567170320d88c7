// What the two programs answer by themselves, and how convert handles rare failures of ImageMagick,
// simulated by a shell script.

#include "toolbench.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class ToolFailuresTest : public QObject
{
    Q_OBJECT

private slots:
    void helpAndVersionAreAnswered_data();
    void helpAndVersionAreAnswered();
    void otherCallsStartNothing_data();
    void otherCallsStartNothing();
    void failureIsPassedOn_data();
    void failureIsPassedOn();
    void diskFullForAMomentLeavesTheOlderPdf();
    void successIsQuiet();
    void noiseIsBounded();
    void realToolSeesPlainNames();
    void realToolSeesACleanEnvironment();
    void missingConfigurationIsNamed();
    void missingRealToolIsNamed();
    void onlyReadableFolderIsNamed();
};

namespace {

const QStringList call = {u"in.pdf"_s, u"o.pdf"_s};

} // namespace

void ToolFailuresTest::helpAndVersionAreAnswered_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("help") << u"--help"_s << QByteArray("usage: PROGRAM ");
    QTest::newRow("version") << u"--version"_s << QByteArray("PROGRAM of Tessaro ");
}

void ToolFailuresTest::helpAndVersionAreAnswered()
{
    QFETCH(QString, option);
    QFETCH(QByteArray, answer);
    for (const QString &program : {u"convert"_s, u"pdftk"_s}) {
        const RunResult result = runBundled(program, {option}, QDir::tempPath());
        QCOMPARE(result.status, 0);
        QCOMPARE(result.errors, QByteArray());
        QVERIFY2(result.output.startsWith(QByteArray(answer).replace("PROGRAM", program.toUtf8())),
                 result.output.constData());
        QCOMPARE(result.output.count('\n'), 1);
    }
}

void ToolFailuresTest::otherCallsStartNothing_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("convert, no arguments") << u"convert"_s << QStringList{};
    QTest::newRow("convert, the real tool's version") << u"convert"_s << QStringList{u"-version"_s};
    QTest::newRow("convert, a file written on the way")
        << u"convert"_s
        << QStringList{u"in.pdf"_s, u"-write"_s, u"jpg:victim"_s, u"in.pdf"_s, u"o.pdf"_s};
    QTest::newRow("pdftk, no arguments") << u"pdftk"_s << QStringList{};
    QTest::newRow("pdftk, another operation")
        << u"pdftk"_s << QStringList{u"in.pdf"_s, u"cat"_s, u"output"_s, u"victim"_s};
}

void ToolFailuresTest::otherCallsStartNothing()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const QTemporaryDir folder;
    const QStringList tool = shellTool(u"touch '%1/started'"_s.arg(folder.path()));
    const ToolBundle bundle(tool);
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    writeContent(folder.filePath(u"victim"_s), "kept");
    const RunResult result = runProgram(bundle.tool(program), arguments, folder.path());
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.startsWith("usage: " + program.toUtf8()) &&
                 result.errors.count('\n') == 1,
             result.errors.constData());
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"victim"_s}));
    QCOMPARE(contentOf(folder.filePath(u"victim"_s)), QByteArray("kept"));
}

void ToolFailuresTest::failureIsPassedOn_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("exits 3 and says why") << "echo why >&2; exit 3" << 3 << QByteArray("why\n");
    QTest::newRow("exits 1 with half a result")
        << "echo half >page.pdf; exit 1" << 1 << QByteArray();
    QTest::newRow("exits 1 with a whole result")
        << "printf '%%PDF-1.4\\n%%%%EOF\\n' >page.pdf; exit 1" << 1 << QByteArray();
    QTest::newRow("exits 0 without a result")
        << "exit 0" << 1
        << QByteArray("convert: the tool reported success but left no whole PDF\n");
    QTest::newRow("exits 0 with an empty result")
        << ": >page.pdf" << 1
        << QByteArray("convert: the tool reported success but left no whole PDF\n");
    QTest::newRow("exits 0 with a result that breaks off")
        << "printf '%%PDF-1.4\\n' >page.pdf" << 1
        << QByteArray("convert: the tool reported success but left no whole PDF\n");
    QTest::newRow("exits 0 with a link for a result")
        << "ln -s /etc/passwd page.pdf" << 1
        << QByteArray("convert: the tool reported success but left no whole PDF\n");
    QTest::newRow("ends itself by a signal")
        << "kill -SEGV $$" << 1 << QByteArray("ended by signal 11\n");
}

void ToolFailuresTest::failureIsPassedOn()
{
    QFETCH(QString, script);
    QFETCH(int, status);
    QFETCH(QByteArray, errors);
    const ToolBundle bundle(shellTool(script));
    const QTemporaryDir pixels;
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s), call, folder.path(), {{u"TMPDIR"_s, pixels.path()}});
    QCOMPARE(result.status, status);
    QCOMPARE(result.errors, errors);
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"o.pdf"_s}));
    QCOMPARE(namesIn(pixels.path()), QStringList());
}

// Later writes would succeed.
void ToolFailuresTest::diskFullForAMomentLeavesTheOlderPdf()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.jpg"_s), {3000, 2000});
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const RunResult result = runBundled(u"convert"_s, {u"x.jpg"_s, u"o.pdf"_s}, folder.path(),
                                        {{u"LD_PRELOAD"_s, QStringLiteral(TESSARO_FAULTINJECTION)},
                                         {u"TESSARO_FAULTINJECTION"_s, u"full"_s}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("convert: cannot write 'o.pdf': No space left on device\n"));
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), QStringList({u"o.pdf"_s, u"x.jpg"_s}));
}

void ToolFailuresTest::successIsQuiet()
{
    const ToolBundle bundle(
        shellTool(u"echo warning; echo warning >&2; cp ../../in.pdf page.pdf"_s));
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"in.pdf"_s}, folder.path()).status, 0);
    QFile::remove(folder.filePath(u"x.png"_s));
    const RunResult result = runProgram(bundle.tool(u"convert"_s), call, folder.path());
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output + result.errors, QByteArray());
    QCOMPARE(namesIn(folder.path()), QStringList({u"in.pdf"_s, u"o.pdf"_s}));
}

void ToolFailuresTest::noiseIsBounded()
{
    const QStringList tool =
        shellTool(u"head -c 50000000 /dev/zero; head -c 50000000 /dev/zero >&2; exit 4"_s);
    const ToolBundle bundle(tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const RunResult result = runProgram(bundle.tool(u"convert"_s), call, folder.path());
    QCOMPARE(result.status, 4);
    QCOMPARE(result.output.size(), 256 * 1024);
    QCOMPARE(result.errors.size(), 256 * 1024);
}

void ToolFailuresTest::realToolSeesPlainNames()
{
    const QStringList tool = shellTool(u"echo \"$@\" >&2; cat input-1.png >&2; exit 1"_s);
    const ToolBundle bundle(tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"a %d[0].png"_s), "content\n");
    const RunResult result =
        runProgram(bundle.tool(u"convert"_s),
                   {u"-rotate"_s, u"90"_s, u"a %d[0].png"_s, u"-5%.pdf"_s}, folder.path());
    // The tool was given "input-1.png"; the name is put back.
    QCOMPARE(result.errors, QByteArray("a %d[0].png -auto-orient -background white -rotate 90 "
                                       "+repage +profile !icc,!icm,* +set comment "
                                       "+set label pdf:page.pdf\ncontent\n"));
}

void ToolFailuresTest::realToolSeesACleanEnvironment()
{
    const QStringList tool = shellTool(u"env | sort >&2; exit 1"_s);
    const ToolBundle bundle(tool);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const Variables variables = {{u"MAGICK_CODER_MODULE_PATH"_s, u"/evil"_s},
                                 {u"LC_MESSAGES"_s, u"de_DE"_s},
                                 {u"LANGUAGE"_s, u"de"_s},
                                 {u"HOME"_s, u"/evil"_s},
                                 {u"SSH_AUTH_SOCK"_s, u"/evil"_s},
                                 {u"TMPDIR"_s, folder.path()}};
    const QByteArray environment =
        runProgram(bundle.tool(u"convert"_s), call, folder.path(), variables).errors;
    QVERIFY(!environment.contains("evil"));
    QVERIFY(!environment.contains("de_DE"));
    QVERIFY(environment.contains("TMPDIR=" + folder.path().toUtf8() + "\n"));
    QVERIFY(environment.contains("LC_ALL=C.UTF-8\n"));
}

void ToolFailuresTest::missingConfigurationIsNamed()
{
    const ToolBundle bundle({});
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const RunResult result = runProgram(bundle.tool(u"convert"_s), call, folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QString(u"%1: cannot read '%2/Resources/%1.tool'; run "
                                    "packaging/assemble-tools again\n"_s)
                                .arg(u"convert"_s, bundle.contents())
                                .toUtf8());
}

void ToolFailuresTest::missingRealToolIsNamed()
{
    const ToolBundle bundle({u"/no/such/tool"_s});
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"in.pdf"_s), "in");
    const RunResult result = runProgram(bundle.tool(u"convert"_s), call, folder.path());
    QCOMPARE(result.status, 127);
    QCOMPARE(result.errors,
             QByteArray("cannot start '/no/such/tool': No such file or directory\n"));
    QCOMPARE(namesIn(folder.path()), QStringList{u"in.pdf"_s});
}

// /proc takes no new folder from anybody, root included.
void ToolFailuresTest::onlyReadableFolderIsNamed()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    const RunResult result =
        runBundled(u"convert"_s, {u"x.png"_s, u"/proc/o.pdf"_s}, folder.path());
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith("convert: cannot create a folder in '/proc'"),
             result.errors.constData());
}

QTEST_GUILESS_MAIN(ToolFailuresTest)
#include "toolfailures_test.moc"
