// What the program convert reads and writes, whatever the machine and the user allow.

#include "toolbench.h"

#include <QDir>
#include <QTest>

class ConvertPolicy : public QObject
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

void ConvertPolicy::namesTheVersionThatRan()
{
    const RunResult result = runBundled("convert", {"-version"}, QDir::tempPath());
    qInfo().noquote() << result.output.split('\n').first();
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.startsWith("Version: ImageMagick"));
}

void ConvertPolicy::forbiddenContentIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("PostScript named .png") << postScript;
    QTest::newRow("SVG named .png") << svg;
    QTest::newRow("MVG named .png") << mvg;
    QTest::newRow("a PDF named .png") << pdf;
    QTest::newRow("a script named .png") << msl;
}

void ConvertPolicy::forbiddenContentIsRefused()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    writeContent(folder.filePath("x.png"), content);
    QVERIFY(runBundled("convert", {"x.png", "o.pdf"}, folder.path()).status != 0);
    QCOMPARE(namesIn(folder.path()), QStringList{"x.png"});
}

void ConvertPolicy::forbiddenFormatsAreRefused_data()
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
        QTest::newRow(input) << QString(input);
}

// With an option in front, the call is handed to the real tool as it is: the policy alone holds.
void ConvertPolicy::forbiddenFormatsAreRefused()
{
    QFETCH(QString, input);
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"));
    writeContent(folder.filePath("x.ps"), postScript);
    writeContent(folder.filePath("x.svg"), svg);
    writeContent(folder.filePath("x.mvg"), mvg);
    writeContent(folder.filePath("x.msl"), msl);
    writeContent(folder.filePath("x.pdf"), pdf);
    writeContent(folder.filePath("x.list"), "x.png\n");
    const QStringList names = namesIn(folder.path());
    for (const QStringList &arguments :
         {QStringList{input, "o.pdf"}, QStringList{"-size", "9x9", input, "o.pdf"}}) {
        QVERIFY(runBundled("convert", arguments, folder.path()).status != 0);
        QCOMPARE(namesIn(folder.path()), names);
    }
}

void ConvertPolicy::usersOwnPolicyChangesNothing_data()
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

void ConvertPolicy::usersOwnPolicyChangesNothing()
{
    QFETCH(QString, place);
    QFETCH(QString, variable);
    const QTemporaryDir home, folder;
    QDir(home.path()).mkpath(place);
    writeContent(home.filePath(place + "/policy.xml"), permissive);
    writeContent(folder.filePath("x.png"), mvg);
    const RunResult result =
        runBundled("convert", {"x.png", "o.pdf"}, folder.path(), {{variable, home.path()}});
    QVERIFY(result.status != 0);
    QCOMPARE(namesIn(folder.path()), QStringList{"x.png"});
}

void ConvertPolicy::plainFormatsAreConverted_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"x.bmp", "x.gif",  "x.jpg",  "x.jpeg", "x.pbm", "x.pcx", "x.png", "x.ppm",
          "x.tif", "x.tiff", "x.webp", "x.jp2",  "x.pnm", "x.pgm", "x.tga", "x.xbm",
          "x.xpm", "x.psd",  "x.ico",  "x.sgi",  "x.sun", "x.JPG"})
        QTest::newRow(name) << QString(name);
}

// The samples are the real tool's own: its readers and writers agree on every format.
void ConvertPolicy::plainFormatsAreConverted()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    makeImage(folder.filePath("source.png"), {40, 30});
    const QString realTool = contentOf(bundleContents() + "/Resources/convert.tool").trimmed();
    QCOMPARE(runProgram(realTool, {"source.png", name}, folder.path()).status, 0);
    const RunResult result = runBundled("convert", {name, "o.pdf"}, folder.path());
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.status, 0);
    QVERIFY(contentOf(folder.filePath("o.pdf")).startsWith("%PDF-"));
}

void ConvertPolicy::everyCompressionIsWritten_data()
{
    QTest::addColumn<QString>("word");
    for (const char *word :
         {"None", "Bzip", "Fax", "Group4", "JPEG", "JPEG2000", "Lossless", "LZW", "RLE", "zip"})
        QTest::newRow(word) << QString(word);
}

void ConvertPolicy::everyCompressionIsWritten()
{
    QFETCH(QString, word);
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"), {40, 30});
    for (const QStringList &colour : {QStringList{}, QStringList{"-monochrome"}}) {
        const RunResult result = runBundled(
            "convert", QStringList{"-compress", word} + colour + QStringList{"x.png", "o.pdf"},
            folder.path());
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(result.status, 0);
    }
}

void ConvertPolicy::onlyPdfIsWritten_data()
{
    QTest::addColumn<QString>("output");
    for (const char *output :
         {"o.png", "o.ps", "o.svg", "ps:o.pdf2", "o.mvg", "info:o.txt", "o.html"})
        QTest::newRow(output) << QString(output);
}

void ConvertPolicy::onlyPdfIsWritten()
{
    QFETCH(QString, output);
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"));
    QVERIFY(runBundled("convert", {"x.png", output}, folder.path()).status != 0);
    const QString name = output.section(':', -1);
    QCOMPARE(contentOf(folder.filePath(name)), QByteArray());
}

void ConvertPolicy::sidesUpTo32000PixelsAreConverted_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("32,000 wide") << QSize(32000, 1) << true;
    QTest::newRow("32,000 high") << QSize(1, 32000) << true;
    QTest::newRow("wider") << QSize(32001, 1) << false;
    QTest::newRow("higher") << QSize(1, 32001) << false;
}

void ConvertPolicy::sidesUpTo32000PixelsAreConverted()
{
    QFETCH(QSize, size);
    QFETCH(bool, accepted);
    const QTemporaryDir folder;
    makeImage(folder.filePath("x.png"), size);
    QCOMPARE(runBundled("convert", {"x.png", "o.pdf"}, folder.path()).status == 0, accepted);
}

QTEST_GUILESS_MAIN(ConvertPolicy)
#include "convertpolicy_test.moc"
