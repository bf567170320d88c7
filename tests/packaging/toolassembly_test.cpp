// packaging/assemble-tools, and what a bundle that it has readied stands.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

#include <unistd.h>

class ToolAssembly : public QObject
{
    Q_OBJECT

private slots:
    void wrongMachinesAreNamed_data();
    void wrongMachinesAreNamed();
    void aPolicyThatDoesNotHoldIsFound();
    void missingProgramsAreNamed();
    void assemblingTwiceGivesTheSame();
    void magickAloneIsCalledAsConvert();
    void changedToolsAreProvenAgain();
    void lostPolicyIsMendedOnTheNextLook();
    void noPolicyNoImage_data();
    void noPolicyNoImage();
    void nothingIsWritableByOthers();
    void movedBundleWorks();
    void linkedProgramsFindTheirBundle();
    void unfitArchiveChangesNothing_data();
    void unfitArchiveChangesNothing();

private:
    static void addScript(const QString &path, const QByteArray &script);
};

namespace {

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        files.append(QDir(folder).relativeFilePath(entries.next()));
    files.sort();
    return files;
}

// A call of each program in the bundle that uses what the bundle brings along.
void verifyWorking(const QString &convert, const QString &pdftk)
{
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"));
    writeContent(folder.filePath("svg.png"), "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    QCOMPARE(runProgram(convert, {"x.png", "o.pdf"}, folder.path()).errors, QByteArray());
    QVERIFY(runProgram(convert, {"svg.png", "no.pdf"}, folder.path()).status > 0);
    const RunResult result =
        runProgram(pdftk, {"o.pdf", "output", "o-1.pdf", "user_pw", "use"}, folder.path());
    QCOMPARE(result.output + result.errors, QByteArray());
    QVERIFY(readPdf(folder.filePath("o-1.pdf")).needsPassword);
}

} // namespace

void ToolAssembly::addScript(const QString &path, const QByteArray &script)
{
    writeContent(path, "#!/bin/sh\n" + script + "\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void ToolAssembly::wrongMachinesAreNamed_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *variable, const char *version,
                        const char *message) {
        QTest::newRow(name) << QString(variable) << QByteArray(version)
                            << QByteArray("assemble-tools: ") + message + "\n";
    };
    row("no convert", "TESSARO_CONVERT", "",
        "there is no program convert: install the Debian package imagemagick.");
    row("another convert", "TESSARO_CONVERT", "Converts units of measurement",
        "the program convert on this machine is another one: install the Debian package "
        "imagemagick.");
    row("a script in front of ImageMagick", "TESSARO_CONVERT", "Version: ImageMagick 7.1.0-0 Q16",
        "the program convert on this machine is another one: install the Debian package "
        "imagemagick.");
    row("an old ImageMagick", "TESSARO_CONVERT", "Version: ImageMagick 5.5.7 02/01/05 Q16",
        "the program convert on this machine is too old: install a newer Debian package "
        "imagemagick.");
    row("no pdftk", "TESSARO_PDFTK", "",
        "there is no program pdftk: install the Debian package pdftk-java.");
    row("another pdftk", "TESSARO_PDFTK", "some other program",
        "the program pdftk on this machine is another one: install the Debian package "
        "pdftk-java.");
    row("an old pdftk", "TESSARO_PDFTK", "pdftk 1.44 a Handy Tool",
        "the program pdftk on this machine is too old: install a newer Debian package "
        "pdftk-java.");
}

void ToolAssembly::wrongMachinesAreNamed()
{
    QFETCH(QString, variable);
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, message);
    const ToolBundle bundle({}, {});
    const QTemporaryDir folder;
    if (!version.isEmpty())
        addScript(folder.filePath("candidate"), "echo '" + version + "'");
    const RunResult result = assembleTools(
        bundle.contents(),
        {{variable, folder.filePath("missing") + ":" + folder.filePath("candidate")}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, message);
}

void ToolAssembly::aPolicyThatDoesNotHoldIsFound()
{
    const ToolBundle bundle({}, {});
    const RunResult result =
        assembleTools(bundle.contents(), {{"TESSARO_CONVERT", TESSARO_LAWLESS_CONVERT}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("assemble-tools: the image policy does not hold: a forbidden "
                        "file (postscript) was converted.\n"));
}

void ToolAssembly::missingProgramsAreNamed()
{
    const QTemporaryDir folder;
    const RunResult result = assembleTools(folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             ("assemble-tools: the bundle '" + folder.path() + "' has no program MacOS/convert.\n")
                 .toUtf8());
}

void ToolAssembly::assemblingTwiceGivesTheSame()
{
    const ToolBundle bundle({}, {});
    QCOMPARE(assembleTools(bundle.contents()).errors, QByteArray());
    const QStringList files = filesBelow(bundle.contents());
    QVERIFY(files.contains("Resources/pdftk.jsa"));
    QCOMPARE(assembleTools(bundle.contents()).errors, QByteArray());
    QCOMPARE(filesBelow(bundle.contents()), files);
    verifyWorking(bundle.tool("convert"), bundle.tool("pdftk"));
}

void ToolAssembly::magickAloneIsCalledAsConvert()
{
    const ToolBundle bundle({}, {});
    const QTemporaryDir folder;
    const QString magick = folder.filePath("magick");
    QVERIFY(QFile::copy(TESSARO_ONLY_MAGICK, magick));
    QCOMPARE(assembleTools(bundle.contents(), {{"TESSARO_CONVERT", magick}}).errors, QByteArray());
    QCOMPARE(contentOf(bundle.contents() + "/Resources/convert.tool"),
             (magick + "\nconvert\n").toUtf8());
    verifyWorking(bundle.tool("convert"), bundle.tool("pdftk"));
}

void ToolAssembly::changedToolsAreProvenAgain()
{
    const ToolBundle bundle({}, {});
    const QTemporaryDir folder;
    const QString tool = folder.filePath("magick");
    const Variables variables = {{"TESSARO_CONVERT", tool}};
    QVERIFY(QFile::copy(TESSARO_ONLY_MAGICK, tool));
    QCOMPARE(assembleTools(bundle.contents(), variables).errors, QByteArray());
    const RunResult same = assembleTools(bundle.contents(), variables, {"--if-changed"});
    QCOMPARE(same.errors + same.output, QByteArray());
    QCOMPARE(same.status, 0);
    QVERIFY(QFile::remove(tool) && QFile::copy(TESSARO_LAWLESS_CONVERT, tool));
    const RunResult changed = assembleTools(bundle.contents(), variables, {"--if-changed"});
    QCOMPARE(changed.status, 1);
    QVERIFY2(changed.output.startsWith("The tools under the program have changed"),
             changed.output.constData());
    QVERIFY2(changed.errors.startsWith("assemble-tools: the image "), changed.errors.constData());
    // What has failed its proof is not taken for proven.
    QCOMPARE(assembleTools(bundle.contents(), variables, {"--if-changed"}).status, 1);
}

void ToolAssembly::lostPolicyIsMendedOnTheNextLook()
{
    const ToolBundle bundle({}, {});
    const QString policy = bundle.contents() + "/Resources/magick/limits/policy.xml";
    QCOMPARE(assembleTools(bundle.contents()).errors, QByteArray());
    QVERIFY(QFile::remove(policy));
    QCOMPARE(assembleTools(bundle.contents(), {}, {"--if-changed"}).errors, QByteArray());
    QVERIFY(QFile::exists(policy));
}

void ToolAssembly::noPolicyNoImage_data()
{
    QTest::addColumn<QString>("spoiling");
    QTest::addColumn<QByteArray>("sentence");
    const QByteArray again = "run packaging/assemble-tools again";
    QTest::newRow("no folder") << "rm -r a.app/Contents/Resources/magick" << again;
    QTest::newRow("no limits") << "rm a.app/Contents/Resources/magick/limits/policy.xml" << again;
    QTest::newRow("no rights") << "rm a.app/Contents/Resources/magick/rights/ImageMagick/policy.xml"
                               << again;
    QTest::newRow("empty rights")
        << ": >a.app/Contents/Resources/magick/rights/ImageMagick/policy.xml" << again;
    QTest::newRow("a colon in the path")
        << "mv a.app a:b.app" << QByteArray("cannot work below a folder with a colon in its name");
}

// A format that the policy forbids, and one that it allows: without a policy neither is made of an
// image that ImageMagick has to read.
void ToolAssembly::noPolicyNoImage()
{
    QFETCH(QString, spoiling);
    QFETCH(QByteArray, sentence);
    const QTemporaryDir folder;
    const QString copy = folder.filePath("a.app");
    QCOMPARE(runProgram("/bin/cp", {"-a", QFileInfo(bundleContents()).path(), copy}, folder.path())
                 .status,
             0);
    makeImage(folder.filePath("x.bmp"));
    QCOMPARE(runProgram("/bin/sh", {"-c", spoiling}, folder.path()).status, 0);
    const QString name = spoiling.startsWith("mv") ? "a:b.app" : "a.app";
    const QString programs = folder.filePath(name + "/Contents/MacOS/");
    for (const QStringList &call : {QStringList{"x.bmp", "o.pdf"}, QStringList{"x.bmp", "o.svg"}}) {
        const RunResult result = runProgram(programs + "convert", call, folder.path());
        QCOMPARE(result.status, 1);
        QCOMPARE(result.errors.count('\n'), 1);
        QVERIFY2(result.errors.contains(sentence), result.errors.constData());
    }
    QCOMPARE(namesIn(folder.path()), QStringList({name, "x.bmp"}));
    QCOMPARE(runBundled("convert", {"x.bmp", "in.pdf"}, folder.path()).status, 0);
    const RunResult finished = runProgram(
        programs + "pdftk", {"in.pdf", "output", "o.pdf", "user_pw", "use"}, folder.path());
    QCOMPARE(finished.errors + finished.output, QByteArray());
}

void ToolAssembly::nothingIsWritableByOthers()
{
    const QString resources = bundleContents() + "/Resources";
    for (const QString &file : filesBelow(resources)) {
        const QFile::Permissions permissions = QFile::permissions(resources + "/" + file);
        QVERIFY2(!(permissions & (QFile::WriteOther | QFile::WriteGroup)), qPrintable(file));
        QVERIFY2(permissions & QFile::ReadOther, qPrintable(file));
    }
}

void ToolAssembly::movedBundleWorks()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath("my app. copy");
    const RunResult copied =
        runProgram("/bin/cp", {"-a", QFileInfo(bundleContents()).path(), copy}, folder.path());
    QCOMPARE(copied.status, 0);
    const QString programs = copy + "/Contents/MacOS/";
    verifyWorking(programs + "convert", programs + "pdftk");
}

void ToolAssembly::linkedProgramsFindTheirBundle()
{
    const QTemporaryDir folder;
    for (const char *name : {"convert", "pdftk"})
        QVERIFY(QFile::link(bundledTool(name), folder.filePath(name)));
    verifyWorking(folder.filePath("convert"), folder.filePath("pdftk"));
}

void ToolAssembly::unfitArchiveChangesNothing_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("it is missing") << "missing";
    QTest::newRow("it is empty") << "empty";
    QTest::newRow("it is another file") << "other";
    QTest::newRow("it is cut off") << "short";
    QTest::newRow("another JVM made it") << "version";
}

void ToolAssembly::unfitArchiveChangesNothing()
{
    QFETCH(QString, state);
    const ToolBundle bundle({"/usr/bin/convert"}, {});
    QByteArray archive = contentOf(bundleContents() + "/Resources/pdftk.jsa");
    QVERIFY(archive.size() > 1'000'000);
    const QHash<QString, QByteArray> contents = {
        {"empty", ""},
        {"other", QByteArray(1'000'000, 'x')},
        {"short", archive.left(archive.size() / 2)},
        {"version", archive.replace("OpenJDK", "OtherJD")}};
    writeContent(bundle.contents() + "/Resources/pdftk.tool",
                 contentOf(bundleContents() + "/Resources/pdftk.tool"));
    if (state != "missing")
        writeContent(bundle.contents() + "/Resources/pdftk.jsa", contents.value(state));
    verifyWorking(bundledTool("convert"), bundle.tool("pdftk"));
}

QTEST_GUILESS_MAIN(ToolAssembly)
#include "toolassembly_test.moc"
