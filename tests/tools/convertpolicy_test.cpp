// What convert reads and writes, independent of the policies of machine and user.

#include "pdfpages.h"
#include "toolbench.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

class ConvertPolicyTest : public QObject
{
    Q_OBJECT

private slots:
    void namesTheVersionThatRan();
    void forbiddenContentIsRefused_data();
    void forbiddenContentIsRefused();
    void forbiddenFormatsAreRefused_data();
    void forbiddenFormatsAreRefused();
    void usersOwnPolicyChangesNothing_data();
    void usersOwnPolicyChangesNothing();
    void plainFormatsAreConverted_data();
    void plainFormatsAreConverted();
    void rareFormatsAreRefused_data();
    void rareFormatsAreRefused();
    void namedFormatIsLetIn_data();
    void namedFormatIsLetIn();
    void ruleIsRead_data();
    void ruleIsRead();
    void ceilingHolds_data();
    void ceilingHolds();
    void everyCompressionIsWritten_data();
    void everyCompressionIsWritten();
    void onlyPdfIsWritten_data();
    void onlyPdfIsWritten();
    void sidesUpTo32000PixelsAreConverted_data();
    void sidesUpTo32000PixelsAreConverted();
};

namespace {

const QByteArray postScript = "%!PS-Adobe-3.0\n%%BoundingBox: 0 0 9 9\n0 0 9 9 rectfill showpage\n";
const QByteArray svg = "<?xml version=\"1.0\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
                       "width=\"9\" height=\"9\"><rect width=\"9\" height=\"9\"/></svg>\n";
const QByteArray mvg = "push graphic-context\nviewbox 0 0 9 9\nrectangle 0,0 9,9\n"
                       "pop graphic-context\n";
const QByteArray msl = "<?xml version=\"1.0\"?>\n<image><read filename=\"xc:red\"/></image>\n";
const QByteArray pdf = "%PDF-1.4\n1 0 obj<</Type/Catalog>>endobj\ntrailer<</Root 1 0 R>>\n%%EOF\n";
const QByteArray permissive = "<policymap><policy domain=\"coder\" rights=\"read|write\" "
                              "pattern=\"*\"/><policy domain=\"delegate\" rights=\"execute\" "
                              "pattern=\"*\"/></policymap>\n";

} // namespace

void ConvertPolicyTest::namesTheVersionThatRan()
{
    const RunResult result = runRealConvert({u"-version"_s}, QDir::tempPath());
    qInfo().noquote() << result.output.split('\n').first();
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.startsWith("Version: ImageMagick"));
}

void ConvertPolicyTest::forbiddenContentIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("PostScript named .png") << postScript;
    QTest::newRow("SVG named .png") << svg;
    QTest::newRow("MVG named .png") << mvg;
    QTest::newRow("a PDF named .png") << pdf;
    QTest::newRow("a script named .png") << msl;
}

void ConvertPolicyTest::forbiddenContentIsRefused()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"x.png"_s), content);
    QVERIFY(runBundled(u"convert"_s, {u"x.png"_s, u"o.pdf"_s}, folder.path()).status != 0);
    QCOMPARE(namesIn(folder.path()), QStringList{u"x.png"_s});
}

void ConvertPolicyTest::forbiddenFormatsAreRefused_data()
{
    QTest::addColumn<QString>("input");
    for (const char *input : {"ps:x.ps",
                              "eps:x.ps",
                              "pdf:x.pdf",
                              "xps:x.ps",
                              "svg:x.svg",
                              "msvg:x.svg",
                              "mvg:x.mvg",
                              "msl:x.msl",
                              "text:x.svg",
                              "txt:x.svg",
                              "label:word",
                              "label:@x.svg",
                              "caption:word",
                              "pango:word",
                              "url:http://127.0.0.1:9/x.png",
                              "http://127.0.0.1:9/x.png",
                              "https://127.0.0.1:9/x.png",
                              "ftp://127.0.0.1:9/x.png",
                              "file:x.png",
                              "xc:red",
                              "gradient:red-blue",
                              "pattern:bricks",
                              "logo:",
                              "fractal:",
                              "inline:x.png",
                              "ephemeral:x.png",
                              "EPHEMERAL:x.png",
                              "win:root",
                              "x:root",
                              "@x.list",
                              "|cat x.png",
                              "mpr:x",
                              "fd:0",
                              "vid:x.png",
                              "mpc:x.png",
                              "miff:x.png",
                              "ept:x.ps",
                              "dcm:x.png",
                              "https:x",
                              "clipboard:",

                              "scan:x"})
        QTest::newRow(input) << input;
}

// Our program never names a format; the policy is a second protection.
void ConvertPolicyTest::forbiddenFormatsAreRefused()
{
    QFETCH(QString, input);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    writeContent(folder.filePath(u"x.ps"_s), postScript);
    writeContent(folder.filePath(u"x.svg"_s), svg);
    writeContent(folder.filePath(u"x.mvg"_s), mvg);
    writeContent(folder.filePath(u"x.msl"_s), msl);
    writeContent(folder.filePath(u"x.pdf"_s), pdf);
    writeContent(folder.filePath(u"x.list"_s), "x.png\n");
    const QStringList names = namesIn(folder.path());
    QVERIFY(runBundled(u"convert"_s, {input, u"o.pdf"_s}, folder.path()).status != 0);
    QCOMPARE(namesIn(folder.path()), names);
    // Version 7.1 takes this pseudo format off a name before it asks any policy.
    if (input.startsWith(u"ephemeral:"_s, Qt::CaseInsensitive))
        return;
    const QStringList call = {u"-size"_s, u"9x9"_s, input, u"o.pdf"_s};
    QVERIFY(runRealConvert(call, folder.path()).status != 0);
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray());
}

void ConvertPolicyTest::usersOwnPolicyChangesNothing_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("variable");
    QTest::newRow("below HOME, the modern place") << ".config/ImageMagick"
                                                  << "HOME";
    QTest::newRow("below HOME, the old place") << ".magick"
                                               << "HOME";
    QTest::newRow("in XDG_CONFIG_HOME") << "ImageMagick"
                                        << "XDG_CONFIG_HOME";
    QTest::newRow("in MAGICK_CONFIGURE_PATH") << "."
                                              << "MAGICK_CONFIGURE_PATH";
}

void ConvertPolicyTest::usersOwnPolicyChangesNothing()
{
    QFETCH(QString, place);
    QFETCH(QString, variable);
    const QTemporaryDir home, folder;
    QDir(home.path()).mkpath(place);
    writeContent(home.filePath(place + u"/policy.xml"_s), permissive);
    writeContent(folder.filePath(u"x.png"_s), mvg);
    const RunResult result = runBundled(u"convert"_s, {u"x.png"_s, u"o.pdf"_s}, folder.path(),
                                        {{variable, home.path()}});
    QVERIFY(result.status != 0);
    QCOMPARE(namesIn(folder.path()), QStringList{u"x.png"_s});
}

void ConvertPolicyTest::plainFormatsAreConverted_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"x.bmp", "x.gif", "x.jpg", "x.jpeg", "x.pbm", "x.pcx", "x.png", "x.ppm", "x.tif",
          "x.tiff", "x.webp", "x.jp2", "x.pnm", "x.pgm", "x.JPG"})
        QTest::newRow(name) << name;
}

// The samples are the real tool's own: its readers and writers agree on every format.
void ConvertPolicyTest::plainFormatsAreConverted()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"source.png"_s), {40, 30});
    const QString realTool =
        QString::fromUtf8(contentOf(bundleContents() + u"/Resources/convert.tool"_s)).trimmed();
    QCOMPARE(runProgram(realTool, {u"source.png"_s, name}, folder.path()).status, 0);
    const RunResult result = runBundled(u"convert"_s, {name, u"o.pdf"_s}, folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    // Black and white by itself, and what Qt does not read.
    const QImage own(folder.filePath(name));
    QCOMPARE(visibleDifference(drawnPage(folder.filePath(u"o.pdf"_s), 0, finelyDrawn),
                               own.isNull() ? QImage(folder.filePath(u"source.png"_s)) : own),
             QString());
}

void ConvertPolicyTest::rareFormatsAreRefused_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format : {"cur", "dcx", "dib", "ico", "jng", "mng", "pam", "pfm", "psb", "psd",
                               "sgi", "sun", "tga", "xbm", "xpm"})
        QTest::newRow(format) << format;
}

void ConvertPolicyTest::rareFormatsAreRefused()
{
    QFETCH(QString, format);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"source.png"_s), {40, 30});
    const QString realTool =
        QString::fromUtf8(contentOf(bundleContents() + u"/Resources/convert.tool"_s)).trimmed();
    QCOMPARE(runProgram(realTool, {u"source.png"_s, format + u":x.png"_s}, folder.path()).status,
             0);
    QVERIFY(QFile::copy(folder.filePath(u"x.png"_s), folder.filePath(u"x."_s + format)));
    const QStringList names = namesIn(folder.path());
    for (const QString &name : {u"x.png"_s, u"x."_s + format})
        QVERIFY(runBundled(u"convert"_s, {name, u"o.pdf"_s}, folder.path()).status != 0);
    QCOMPARE(namesIn(folder.path()), names);
}

void ConvertPolicyTest::namedFormatIsLetIn_data()
{
    QTest::addColumn<QString>("format");
    for (const char *format :
         {"bmp",  "gif", "pcx",    "png",  "jpeg", "jpg",  "jpe",  "pjpeg", "jp2",
          "j2c",  "j2k", "jpc",    "jpm",  "jpt",  "pbm",  "pgm",  "ppm",   "pnm",
          "tiff", "tif", "tiff64", "webp", "heic", "heif", "avif", "jxl"})
        QTest::newRow(format) << format;
}

// Not every version knows each of them, and this is an image of none; the policy comes first.
void ConvertPolicyTest::namedFormatIsLetIn()
{
    QFETCH(QString, format);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"x"_s), "no image");
    const RunResult result = runRealConvert({format + u":x"_s, u"o.pdf"_s}, folder.path());
    QVERIFY(result.status != 0);
    QVERIFY2(!result.errors.contains("security policy"), result.errors.constData());
}

void ConvertPolicyTest::ruleIsRead_data()
{
    QTest::addColumn<QString>("rule");
    for (const char *rule :
         {"Delegate rights: None pattern: *", "Filter rights: None pattern: *",
          "Path rights: None pattern: @*", "Path rights: None pattern: |*",
          "Module rights: Read Write pattern: PDF", "Coder rights: None pattern: *"})
        QTest::newRow(rule) << rule;
}

// What one rule closes, another may close as well.
void ConvertPolicyTest::ruleIsRead()
{
    QFETCH(QString, rule);
    const RunResult result = runRealConvert({u"-list"_s, u"policy"_s}, QDir::tempPath());
    const QString ours = QString::fromUtf8(result.output)
                             .section(u"/magick/rights/ImageMagick/policy.xml"_s, 1)
                             .section(u"\nPath: "_s, 0, 0)
                             .simplified();
    QVERIFY2((ours + u' ').contains(u"Policy: %1 "_s.arg(rule)), qPrintable(ours));
}

void ConvertPolicyTest::ceilingHolds_data()
{
    QTest::addColumn<QString>("ceiling");
    for (const char *ceiling : {"Width: 32(K|000)P", "Height: 32(K|000)P", "Area: 1GP",
                                "Memory: 4GiB", "Map: 0B", "Disk: 1TiB"})
        QTest::newRow(ceiling) << ceiling;
}

void ConvertPolicyTest::ceilingHolds()
{
    QFETCH(QString, ceiling);
    const RunResult result = runRealConvert({u"-list"_s, u"resource"_s}, QDir::tempPath());
    const QRegularExpression line(u" %1\\n"_s.arg(ceiling));
    QVERIFY2(QString::fromUtf8(result.output).contains(line), result.output.constData());
}

void ConvertPolicyTest::everyCompressionIsWritten_data()
{
    QTest::addColumn<QString>("word");
    for (const char *word :
         {"None", "Bzip", "Fax", "Group4", "JPEG", "JPEG2000", "Lossless", "LZW", "RLE", "zip"})
        QTest::newRow(word) << word;
}

void ConvertPolicyTest::everyCompressionIsWritten()
{
    QFETCH(QString, word);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s), {40, 30});
    for (const QStringList &colour : {QStringList{}, QStringList{u"-monochrome"_s}}) {
        const RunResult result = runBundled(u"convert"_s,
                                            QStringList{u"-compress"_s, word} + colour +
                                                QStringList{u"x.png"_s, u"o.pdf"_s},
                                            folder.path());
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(result.status, 0);
    }
}

void ConvertPolicyTest::onlyPdfIsWritten_data()
{
    QTest::addColumn<QString>("output");
    for (const char *output :
         {"o.png", "o.ps", "o.svg", "ps:o.pdf2", "o.mvg", "info:o.txt", "o.html"})
        QTest::newRow(output) << output;
}

void ConvertPolicyTest::onlyPdfIsWritten()
{
    QFETCH(QString, output);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, output}, folder.path()).status, 2);
    QCOMPARE(namesIn(folder.path()), QStringList{u"x.png"_s});
    QVERIFY(runRealConvert({u"x.png"_s, output}, folder.path()).status != 0);
    QCOMPARE(contentOf(folder.filePath(output.section(u':', -1))), QByteArray());
}

void ConvertPolicyTest::sidesUpTo32000PixelsAreConverted_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("32,000 wide") << QSize(32000, 1) << true;
    QTest::newRow("32,000 high") << QSize(1, 32000) << true;
    QTest::newRow("wider") << QSize(32001, 1) << false;
    QTest::newRow("higher") << QSize(1, 32001) << false;
}

void ConvertPolicyTest::sidesUpTo32000PixelsAreConverted()
{
    QFETCH(QSize, size);
    QFETCH(bool, accepted);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s), size);
    QCOMPARE(runBundled(u"convert"_s, {u"x.png"_s, u"o.pdf"_s}, folder.path()).status == 0,
             accepted);
}

QTEST_GUILESS_MAIN(ConvertPolicyTest)
#include "convertpolicy_test.moc"
