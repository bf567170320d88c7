// packaging/assemble-tools, and the changes that the finished bundle tolerates.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

class ToolAssemblyTest : public QObject
{
    Q_OBJECT

private slots:
    void wrongMachinesAreNamed_data();
    void wrongMachinesAreNamed();
    void aPolicyThatDoesNotHoldIsFound();
    void missingRightIsNamed();
    void missingProgramsAreNamed();
    void assemblingTwiceGivesTheSame();
    void magickAloneIsCalledAsConvert();
    void everythingThatDecidesIsWatched_data();
    void everythingThatDecidesIsWatched();
    void changedToolsAreVerifiedAgain();
    void lostPolicyIsRestoredOnTheNextCheck();
    void noPolicyNoImage_data();
    void noPolicyNoImage();
    void nothingIsWritableByOthers();
    void movedBundleWorks();
    void linkedProgramsFindTheirBundle();

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
    makeImage(folder.filePath(u"x.png"_s));
    writeContent(folder.filePath(u"svg.png"_s), "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    QCOMPARE(runProgram(convert, {u"x.png"_s, u"o.pdf"_s}, folder.path()).errors, QByteArray());
    QVERIFY(runProgram(convert, {u"svg.png"_s, u"no.pdf"_s}, folder.path()).status > 0);
    const RunResult result = runProgram(
        pdftk, {u"o.pdf"_s, u"output"_s, u"o-1.pdf"_s, u"user_pw"_s, u"use"_s}, folder.path());
    QCOMPARE(result.output + result.errors, QByteArray());
    QVERIFY(readPdf(folder.filePath(u"o-1.pdf"_s)).needsPassword);
}

} // namespace

void ToolAssemblyTest::addScript(const QString &path, const QByteArray &script)
{
    writeContent(path, "#!/bin/sh\n" + script + "\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void ToolAssemblyTest::wrongMachinesAreNamed_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *version, const char *message) {
        QTest::newRow(name) << QByteArray(version)
                            << QByteArray("assemble-tools: ") + message + "\n";
    };
    row("no convert", "", "there is no program convert: install the Debian package imagemagick.");
    row("another convert", "Converts units of measurement",
        "the program convert on this machine is another one: install the Debian package "
        "imagemagick.");
    row("a script in front of ImageMagick", "Version: ImageMagick 7.1.0-0 Q16",
        "the program convert on this machine is another one: install the Debian package "
        "imagemagick.");
    row("an old ImageMagick", "Version: ImageMagick 5.5.7 02/01/05 Q16",
        "the program convert on this machine is too old: install a newer Debian package "
        "imagemagick.");
}

void ToolAssemblyTest::wrongMachinesAreNamed()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, message);
    const ToolBundle bundle({});
    const QTemporaryDir folder;
    if (!version.isEmpty())
        addScript(folder.filePath(u"candidate"_s), "echo '" + version + "'");
    const RunResult result = assembleTools(
        bundle.contents(), {{u"TESSARO_CONVERT"_s, folder.filePath(u"missing"_s) + u':' +
                                                       folder.filePath(u"candidate"_s)}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, message);
}

void ToolAssemblyTest::aPolicyThatDoesNotHoldIsFound()
{
    const ToolBundle bundle({});
    const RunResult result = assembleTools(
        bundle.contents(), {{u"TESSARO_CONVERT"_s, QStringLiteral(TESSARO_NOPOLICYCONVERT)}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("assemble-tools: the image policy does not hold: a forbidden "
                        "file (postscript) was converted.\n"));
}

void ToolAssemblyTest::missingRightIsNamed()
{
    const ToolBundle bundle({});
    const RunResult result = assembleTools(
        bundle.contents(), {{u"TESSARO_CONVERT"_s, QStringLiteral(TESSARO_OUTSIDETOOL)}});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("assemble-tools: the sandbox gives the image tool no right to read "
                        "'" TESSARO_OUTSIDELIBRARY "': install ImageMagick with its libraries in "
                        "/usr, or bin and lib in one folder.\n"));
    QVERIFY(!QFile::exists(bundle.contents() + u"/Resources/verified"_s));
}

void ToolAssemblyTest::missingProgramsAreNamed()
{
    const QTemporaryDir folder;
    const RunResult result = assembleTools(folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, (u"assemble-tools: the bundle '"_s + folder.path() +
                             u"' has no program MacOS/convert.\n"_s)
                                .toUtf8());
}

void ToolAssemblyTest::assemblingTwiceGivesTheSame()
{
    const ToolBundle bundle({});
    QCOMPARE(assembleTools(bundle.contents()).errors, QByteArray());
    const QStringList files = filesBelow(bundle.contents());
    QVERIFY(files.contains(u"Resources/verified"_s));
    QCOMPARE(assembleTools(bundle.contents()).errors, QByteArray());
    QCOMPARE(filesBelow(bundle.contents()), files);
    verifyWorking(bundle.tool(u"convert"_s), bundle.tool(u"pdftk"_s));
}

void ToolAssemblyTest::magickAloneIsCalledAsConvert()
{
    // No sandbox: the stand-in starts the machine's convert.
    const ToolBundle bundle(shellTool({}));
    const QTemporaryDir folder;
    const QString magick = folder.filePath(u"magick"_s);
    QVERIFY(QFile::copy(QStringLiteral(TESSARO_MAGICK7STUB), magick));
    QCOMPARE(assembleTools(bundle.contents(), {{u"TESSARO_CONVERT"_s, magick}}).errors,
             QByteArray());
    QCOMPARE(contentOf(bundle.contents() + u"/Resources/convert.tool"_s),
             (magick + u"\nconvert\n"_s).toUtf8());
    verifyWorking(bundle.tool(u"convert"_s), bundle.tool(u"pdftk"_s));
}

void ToolAssemblyTest::everythingThatDecidesIsWatched_data()
{
    QTest::addColumn<QString>("path");
    const QByteArray tool = contentOf(bundleContents() + u"/Resources/convert.tool"_s);
    QTest::newRow("ImageMagick") << QRegularExpression::escape(
        QString::fromUtf8(tool).section(u'\n', 0, 0));
    QTest::newRow("its library") << u"/libMagickCore-.*"_s;
    QTest::newRow("the library of PDFs") << u"/libqpdf.*"_s;
    QTest::newRow("the folder of formats") << u"/coders"_s;
    QTest::newRow("the machine's policy") << u"/etc/ImageMagick-\\d/policy.xml"_s;
    for (const char *ours :
         {"/packaging/assemble-tools", "/packaging/find-imagemagick", "/packaging/verify-tools",
          "/tools/policy/limits.xml", "/tools/policy/rights.xml", "/Contents/MacOS/convert",
          "/Contents/MacOS/pdftk", "/Contents/Resources/magick/limits/policy.xml",
          "/Contents/Resources/magick/rights/ImageMagick/policy.xml"})
        QTest::newRow(ours) << QString::fromLatin1(ours);
}

void ToolAssemblyTest::everythingThatDecidesIsWatched()
{
    QFETCH(QString, path);
    const QByteArray watched = contentOf(bundleContents() + u"/Resources/verified"_s);
    const QRegularExpression line(u"^\\d+ \\S+ (/.*)?"_s + path + u'$',
                                  QRegularExpression::MultilineOption);
    QVERIFY2(QString::fromUtf8(watched).contains(line), watched.constData());
}

void ToolAssemblyTest::changedToolsAreVerifiedAgain()
{
    // No sandbox: the stand-in starts the machine's convert.
    const ToolBundle bundle(shellTool({}));
    const QTemporaryDir folder;
    const QString tool = folder.filePath(u"magick"_s);
    const Variables variables = {{u"TESSARO_CONVERT"_s, tool}};
    QVERIFY(QFile::copy(QStringLiteral(TESSARO_MAGICK7STUB), tool));
    QCOMPARE(assembleTools(bundle.contents(), variables).errors, QByteArray());
    const RunResult same = assembleTools(bundle.contents(), variables, {u"--if-changed"_s});
    QCOMPARE(same.errors + same.output, QByteArray());
    QCOMPARE(same.status, 0);
    QVERIFY(QFile::remove(tool) && QFile::copy(QStringLiteral(TESSARO_NOPOLICYCONVERT), tool));
    const RunResult changed = assembleTools(bundle.contents(), variables, {u"--if-changed"_s});
    QCOMPARE(changed.status, 1);
    QVERIFY2(changed.output.startsWith("The tools under the program have changed"),
             changed.output.constData());
    QVERIFY2(changed.errors.startsWith("assemble-tools: the image "), changed.errors.constData());
    // What has failed is not taken for verified.
    QCOMPARE(assembleTools(bundle.contents(), variables, {u"--if-changed"_s}).status, 1);
}

void ToolAssemblyTest::lostPolicyIsRestoredOnTheNextCheck()
{
    const ToolBundle bundle({});
    const QString policy = bundle.contents() + u"/Resources/magick/limits/policy.xml"_s;
    QCOMPARE(assembleTools(bundle.contents()).errors, QByteArray());
    QVERIFY(QFile::remove(policy));
    QCOMPARE(assembleTools(bundle.contents(), {}, {u"--if-changed"_s}).errors, QByteArray());
    QVERIFY(QFile::exists(policy));
}

void ToolAssemblyTest::noPolicyNoImage_data()
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

void ToolAssemblyTest::noPolicyNoImage()
{
    QFETCH(QString, spoiling);
    QFETCH(QByteArray, sentence);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"a.app"_s);
    QCOMPARE(
        runProgram(u"/bin/cp"_s, {u"-a"_s, QFileInfo(bundleContents()).path(), copy}, folder.path())
            .status,
        0);
    makeImage(folder.filePath(u"x.bmp"_s));
    QCOMPARE(runProgram(u"/bin/sh"_s, {u"-c"_s, spoiling}, folder.path()).status, 0);
    const QString name = spoiling.startsWith(u"mv"_s) ? u"a:b.app"_s : u"a.app"_s;
    const QString programs = folder.filePath(name + u"/Contents/MacOS/"_s);
    const RunResult result =
        runProgram(programs + u"convert"_s, {u"x.bmp"_s, u"o.pdf"_s}, folder.path());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count('\n'), 1);
    QVERIFY2(result.errors.contains(sentence), result.errors.constData());
    QCOMPARE(namesIn(folder.path()), QStringList({name, u"x.bmp"_s}));
    QCOMPARE(runBundled(u"convert"_s, {u"x.bmp"_s, u"in.pdf"_s}, folder.path()).status, 0);
    const RunResult finished =
        runProgram(programs + u"pdftk"_s,
                   {u"in.pdf"_s, u"output"_s, u"o.pdf"_s, u"user_pw"_s, u"use"_s}, folder.path());
    QCOMPARE(finished.errors + finished.output, QByteArray());
}

void ToolAssemblyTest::nothingIsWritableByOthers()
{
    const QString resources = bundleContents() + u"/Resources"_s;
    for (const QString &file : filesBelow(resources)) {
        const QFile::Permissions permissions = QFile::permissions(resources + u'/' + file);
        QVERIFY2(!(permissions & (QFile::WriteOther | QFile::WriteGroup)), qPrintable(file));
        QVERIFY2(permissions & QFile::ReadOther, qPrintable(file));
    }
}

void ToolAssemblyTest::movedBundleWorks()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(u"my app. copy"_s);
    const RunResult copied = runProgram(
        u"/bin/cp"_s, {u"-a"_s, QFileInfo(bundleContents()).path(), copy}, folder.path());
    QCOMPARE(copied.status, 0);
    const QString programs = copy + u"/Contents/MacOS/"_s;
    verifyWorking(programs + u"convert"_s, programs + u"pdftk"_s);
}

void ToolAssemblyTest::linkedProgramsFindTheirBundle()
{
    const QTemporaryDir folder;
    for (const QString &name : {u"convert"_s, u"pdftk"_s})
        QVERIFY(QFile::link(bundledTool(name), folder.filePath(name)));
    verifyWorking(folder.filePath(u"convert"_s), folder.filePath(u"pdftk"_s));
}

QTEST_GUILESS_MAIN(ToolAssemblyTest)
#include "toolassembly_test.moc"
