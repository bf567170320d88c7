// The rules of our convert that need neither the real tool nor a file.

#include "convertcall.h"
#include "convertlimits.h"
#include "document.h"
#include "error.h"
#include "fileoutput.h"
#include "jpegscaling.h"
#include "magick.h"
#include "magickwarnings.h"
#include "workdirectory.h"

#include <QTest>

#include <algorithm>
#include <new>

using Words = std::vector<std::string>;
using Size = unsigned long long;

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(Words)

class ConvertRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void applicationsCallsAreParsed();
    void typedAnglesAreParsed_data();
    void typedAnglesAreParsed();
    void otherCallsAreRefused_data();
    void otherCallsAreRefused();
    void inputsGetPlainNames_data();
    void inputsGetPlainNames();
    void optionsThatChangePixels_data();
    void optionsThatChangePixels();
    void compressionsAllowCopies_data();
    void compressionsAllowCopies();
    void jpegDecodersShrink_data();
    void jpegDecodersShrink();
    void messagesReportDamage_data();
    void messagesReportDamage();
    void runsAtOnceFitTheMachine_data();
    void runsAtOnceFitTheMachine();
    void limitsFollowTheMachine_data();
    void limitsFollowTheMachine();
    void pixelsGoToMemoryLast();
    void foldersForPixelsAreAbsolute();
    void lackOfMemoryWhileJoiningIsNamed();
};

void ConvertRulesTest::applicationsCallsAreParsed()
{
    const std::optional<ConvertCall> plain = parseConvertCall({"/a.png", "o.pdf"});
    QVERIFY(plain);
    QVERIFY(!plain->options.resize && !plain->options.monochrome);
    QCOMPARE(plain->options.rotate + plain->options.compress, std::string());
    QCOMPARE(plain->inputs, Words{"/a.png"});

    const std::optional<ConvertCall> full =
        parseConvertCall({"-resize", "595x842", "-rotate", "90", "-compress", "JPEG", "-monochrome",
                          "/a", "/b", "-out/o.pdf"});
    QVERIFY(full);
    QCOMPARE(full->options.resize->width, 595U);
    QCOMPARE(full->options.resize->height, 842U);
    QCOMPARE(full->options.rotate, std::string("90"));
    QCOMPARE(full->options.compress, std::string("JPEG"));
    QVERIFY(full->options.monochrome);
    QCOMPARE(full->inputs, Words({"/a", "/b"}));
    QCOMPARE(full->output, std::string("-out/o.pdf"));
}

void ConvertRulesTest::typedAnglesAreParsed_data()
{
    QTest::addColumn<std::string>("angle");
    QTest::addColumn<bool>("accepted");
    for (const char *angle : {"90", "3", "89.5", "-7", "+45", "0", ".5", "359"})
        QTest::newRow(angle) << std::string(angle) << true;
    for (const char *angle : {"", "-", "--5", "+-5", "1e3", "inf", "nan", "90>", "9O", "0x10",
                              "1.2.3", "45,5", "-write", "90 ", "@f"})
        QTest::addRow("no angle: '%s'", angle) << std::string(angle) << false;
}

void ConvertRulesTest::typedAnglesAreParsed()
{
    QFETCH(std::string, angle);
    QTEST(parseConvertCall({"-rotate", angle, "/a", "o.pdf"}).has_value(), "accepted");
}

void ConvertRulesTest::otherCallsAreRefused_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::newRow("no arguments") << Words{};
    QTest::newRow("a question for the version") << Words{"-version"};
    QTest::newRow("an output but no input") << Words{"o.pdf"};
    QTest::newRow("an option without its value") << Words{"-resize"};
    QTest::newRow("another output format") << Words{"/a.png", "o.png"};
    QTest::newRow("an option that the application has not")
        << Words{"-density", "72", "/a", "o.pdf"};
    QTest::newRow("an option behind the input") << Words{"/a", "-rotate", "90", "o.pdf"};
    QTest::newRow("a file written on the way") << Words{"/x", "-write", "jpg:F", "y", "o.pdf"};
    QTest::newRow("a file written behind an angle")
        << Words{"-rotate", "90", "-write", "F", "/a", "o.pdf"};
    QTest::newRow("options in another order")
        << Words{"-rotate", "90", "-resize", "9x9", "/a", "o.pdf"};
    QTest::newRow("an option twice") << Words{"-rotate", "90", "-rotate", "90", "/a", "o.pdf"};
    QTest::newRow("a size that is no box") << Words{"-resize", "50%", "/a", "o.pdf"};
    QTest::newRow("a size with more in it") << Words{"-resize", "9x9!", "/a", "o.pdf"};
    QTest::newRow("a size of nothing") << Words{"-resize", "0x9", "/a", "o.pdf"};
    QTest::newRow("another sign in a size") << Words{"-resize", "595*842", "/a", "o.pdf"};
    QTest::newRow("no height in a size") << Words{"-resize", "595", "/a", "o.pdf"};
    QTest::newRow("an empty compression") << Words{"-compress", "", "/a", "o.pdf"};
    QTest::newRow("an unknown compression") << Words{"-compress", "WebP", "/a", "o.pdf"};
    QTest::newRow("an empty path") << Words{"", "o.pdf"};
    QTest::newRow("the standard input") << Words{"-", "o.pdf"};
}

void ConvertRulesTest::otherCallsAreRefused()
{
    QFETCH(Words, arguments);
    QVERIFY(!parseConvertCall(arguments));
}

void ConvertRulesTest::inputsGetPlainNames_data()
{
    QTest::addColumn<std::string>("path");
    QTest::addColumn<std::string>("name");
    QTest::newRow("the extension is kept")
        << std::string("/x/a b.JPG") << std::string("input-7.JPG");
    QTest::newRow("no extension") << std::string("/x.y/a") << std::string("input-7");
    QTest::newRow("never the result's extension")
        << std::string("/a.pdf") << std::string("input-7");
    QTest::newRow("a selector is no extension")
        << std::string("/a.png[0]") << std::string("input-7");
    QTest::newRow("the extension of a format that is not let in")
        << std::string("/a.dng") << std::string("input-7");
    QTest::newRow("an extension that is a format of another kind")
        << std::string("/a.map") << std::string("input-7");
    QTest::newRow("a dot at the end") << std::string("/a.") << std::string("input-7");
}

void ConvertRulesTest::inputsGetPlainNames()
{
    QFETCH(std::string, path);
    QFETCH(std::string, name);
    QCOMPARE(inputName(7, path), name);
}

void ConvertRulesTest::optionsThatChangePixels_data()
{
    QTest::addColumn<Words>("options");
    QTest::addColumn<bool>("changes");
    QTest::newRow("none") << Words{} << false;
    QTest::newRow("a compression") << Words{"-compress", "JPEG"} << false;
    QTest::newRow("a turn by nothing") << Words{"-rotate", "-0.0", "-compress", "zip"} << false;
    QTest::newRow("a turn") << Words{"-rotate", "90"} << true;
    QTest::newRow("a small turn") << Words{"-rotate", ".05"} << true;
    QTest::newRow("a page size") << Words{"-resize", "595x842"} << true;
    QTest::newRow("black and white") << Words{"-compress", "JPEG", "-monochrome"} << true;
}

void ConvertRulesTest::optionsThatChangePixels()
{
    QFETCH(Words, options);
    options.insert(options.end(), {"/a", "o.pdf"});
    QTEST(parseConvertCall(options)->options.changesPixels(), "changes");
}

void ConvertRulesTest::compressionsAllowCopies_data()
{
    QTest::addColumn<std::string>("word");
    QTest::addColumn<int>("allowed");
    QTest::newRow("none") << std::string() << -1;
    for (const char *word : {"None", "Bzip", "Fax", "JPEG2000", "Lossless", "LZW", "RLE"})
        QTest::newRow(word) << std::string(word) << int(Compression::Other);
    QTest::newRow("Group4") << std::string("Group4") << int(Compression::Group4);
    QTest::newRow("JPEG") << std::string("JPEG") << int(Compression::Jpeg);
    QTest::newRow("zip") << std::string("zip") << int(Compression::Zip);
}

void ConvertRulesTest::compressionsAllowCopies()
{
    QFETCH(std::string, word);
    QFETCH(int, allowed);
    ConvertOptions options;
    options.compress = word;
    for (const Compression own : {Compression::Jpeg, Compression::Zip, Compression::Group4})
        QCOMPARE(options.allows(own), allowed == -1 || int(own) == allowed);
}

void ConvertRulesTest::jpegDecodersShrink_data()
{
    QTest::addColumn<QSize>("box");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("decoded");
    QTest::addColumn<QSize>("result");
    const QSize a4(595, 842);
    QTest::newRow("a scan for an A4 page") << a4 << QSize(2480, 3508) << QSize(1240, 1754) << a4;
    QTest::newRow("a photo for an A6 page")
        << QSize(297, 421) << QSize(4000, 3000) << QSize(666, 500) << QSize(297, 223);
    QTest::newRow("just twice as large") << a4 << QSize(1190, 1684) << QSize() << QSize();
    QTest::newRow("just four times as large") << a4 << QSize(2380, 3368) << QSize(1190, 1684) << a4;
    QTest::newRow("one pixel less") << a4 << QSize(2380, 3367) << QSize() << QSize();
    QTest::newRow("larger than eight times")
        << a4 << QSize(32000, 32000) << QSize(4000, 4000) << QSize(595, 595);
    QTest::newRow("to be made larger") << a4 << QSize(20, 10) << QSize() << QSize();
    QTest::newRow("a line that would have no height") << a4 << QSize(3000, 2) << QSize() << QSize();
    QTest::newRow("a line that would have no width") << a4 << QSize(2, 9000) << QSize() << QSize();
    QTest::newRow("no readable header") << a4 << QSize(0, 0) << QSize() << QSize();
}

void ConvertRulesTest::jpegDecodersShrink()
{
    QFETCH(QSize, box);
    QFETCH(QSize, size);
    const auto pixels = [](QSize value) {
        return PixelSize{static_cast<uint>(value.width()), static_cast<uint>(value.height())};
    };
    const auto qSize = [](PixelSize value) { return QSize(int(value.width), int(value.height)); };
    const std::optional<JpegScaling> scaling = jpegScaling(pixels(box), pixels(size));
    QTEST(scaling ? qSize(scaling->decoded) : QSize(), "decoded");
    QTEST(scaling ? qSize(scaling->result) : QSize(), "result");
}

void ConvertRulesTest::messagesReportDamage_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<bool>("damage");
    const auto row = [](const char *message, bool damage) {
        QTest::newRow(message) << QByteArray(message) << damage;
    };
    row("convert: Premature end of JPEG file `a' @ warning/jpeg.c/JPEGWarningHandler/389.", true);
    row("Corrupt JPEG data: premature end of data segment `a' @ warning/jpeg.c/", true);
    row("Corrupt JPEG data: bad Huffman code `a' @ warning/jpeg.c/", true);
    row("Read error at scanline 5; got 3 bytes `TIFFFillStrip' @ error/tiff.c/TIFFErrors/603.",
        true);
    row("convert: no room `a' @ fatal/cache.c/AcquirePixelCache/223.", true);
    row("Premature EOF at line 7 of strip 0 `Fax4Decode' @ warning/tiff.c/TIFFWarnings/", true);
    row("Corrupt JPEG data: bad arithmetic code `a' @ warning/jpeg.c/", true);
    row("Corrupt JPEG data: found marker 0xd5 instead of RST3 `a' @ warning/jpeg.c/", true);
    row("convert: too many exceptions (exception processing is suspended) @ warning/x.c/", true);
    row("convert: InvalidColormapIndex `a' @ warning/colormap-private.h/", true);
    row("Incorrect count for \"StripOffsets\" `TIFFReadDirectory' @ warning/tiff.c/", true);
    row("Incorrect count for \"TileByteCounts\" `TIFFReadDirectory' @ warning/tiff.c/", true);
    row("Discarding 3 bytes to avoid buffer overrun `PackBitsDecode' @ warning/tiff.c/", true);
    row("Improper JPEG strip/tile size, expected 9x9 `JPEGPreDecode' @ warning/tiff.c/", true);
    row("", false);
    row("Unknown field with tag 40000 `TIFFReadDirectory' @ warning/tiff.c/TIFFWarnings/", false);
    row("Corrupt JPEG data: 5 extraneous bytes before marker 0xd9 `a' @ warning/jpeg.c/", false);
    row("Corrupt JPEG data: 256 extraneous bytes before marker 0xd9 `a' @ warning/jpeg.c/", false);
    row("Corrupt JPEG data: 257 extraneous bytes before marker 0xd9 `a' @ warning/jpeg.c/", true);
    row("Corrupt JPEG data: 900 extraneous bytes before marker 0xfe `a' @ warning/jpeg.c/", false);
    row("Corrupt JPEG data: 200 extraneous bytes before marker 0xda `a' @ warning/jpeg.c/\n"
        "Corrupt JPEG data: 200 extraneous bytes before marker 0xc4 `a' @ warning/jpeg.c/",
        true);
    row("iCCP: known incorrect sRGB profile `a' @ warning/png.c/MagickPNGWarningHandler/", false);
}

void ConvertRulesTest::messagesReportDamage()
{
    QFETCH(QByteArray, message);
    QTEST(reportsDamage(message.toStdString()), "damage");
}

void ConvertRulesTest::runsAtOnceFitTheMachine_data()
{
    constexpr Size gib = Size(1) << 30;
    QTest::addColumn<int>("cores");
    QTest::addColumn<Size>("ram");
    QTest::addColumn<int>("concurrency");
    QTest::newRow("one core") << 1 << 64 * gib << 1;
    QTest::newRow("each core has a run") << 4 << 64 * gib << 4;
    QTest::newRow("no more than 4 GiB are shared") << 64 << 64 * gib << 5;
    QTest::newRow("a small machine") << 8 << 4 * gib << 2;
    QTest::newRow("a very small machine") << 8 << gib / 2 << 1;
}

void ConvertRulesTest::runsAtOnceFitTheMachine()
{
    QFETCH(int, cores);
    QFETCH(Size, ram);
    QTEST(int(maxConcurrency(static_cast<size_t>(cores), ram)), "concurrency");
}

void ConvertRulesTest::limitsFollowTheMachine_data()
{
    constexpr Size gib = Size(1) << 30;
    QTest::addColumn<int>("concurrency");
    QTest::addColumn<int>("pages");
    QTest::addColumn<Size>("ram");
    QTest::addColumn<Size>("memory");
    QTest::addColumn<int>("seconds");
    QTest::newRow("a small machine gives two fifths") << 1 << 1 << 5 * gib << 2 * gib << 100;
    QTest::newRow("a large machine stays below 4 GiB") << 1 << 1 << 64 * gib << 13 * gib / 4 << 100;
    QTest::newRow("several runs share") << 2 << 1 << 64 * gib << 21 * gib / 16 << 100;
    QTest::newRow("many leave half to the decoders") << 5 << 1 << 64 * gib << 31 * gib / 80 << 100;
    QTest::newRow("every further page has its own time")
        << 1 << 100 << 5 * gib << 2 * gib << 100 + 99 * 30;
    QTest::newRow("an hour at most") << 1 << 1'000'000 << 5 * gib << 2 * gib << 3700;
}

void ConvertRulesTest::limitsFollowTheMachine()
{
    QFETCH(int, concurrency);
    QFETCH(int, pages);
    QFETCH(Size, ram);
    QFETCH(Size, memory);
    QFETCH(int, seconds);
    const auto runs = static_cast<size_t>(concurrency);
    const ConvertLimits limits =
        limitsFor({runs, static_cast<size_t>(pages), 1 << 20}, ram, 400 * runs);
    QCOMPARE(limits.memory >> 20, memory >> 20);
    QCOMPARE(limits.disk, Size(300));
    QCOMPARE(limits.threads, concurrency == 1 ? 0 : 1);
    QCOMPARE(limits.time, std::chrono::seconds(seconds));
    const std::vector<ResourceLimit> kernel = kernelLimits(limits);
    QCOMPARE(kernel.front().resource, RLIMIT_DATA);
    QVERIFY(kernel.front().value * runs < Size(4) << 30);
}

// On Linux /dev is a file system in memory, and /proc is none.
void ConvertRulesTest::pixelsGoToMemoryLast()
{
    qputenv("TMPDIR", "/dev");
    qputenv("XDG_RUNTIME_DIR", "/proc");
    const Words folders = pixelFolders("/last");
    QCOMPARE(folders.back(), std::string("/last"));
    const auto inMemory = std::ranges::find(folders, "/dev");
    const auto onDisk = std::ranges::find(folders, "/proc");
    QVERIFY(onDisk < inMemory && inMemory != folders.end());
}

void ConvertRulesTest::foldersForPixelsAreAbsolute()
{
    qputenv("TMPDIR", "relative");
    qputenv("XDG_RUNTIME_DIR", "");
    QCOMPARE(temporaryFolders(), Words({"/var/tmp", "/tmp"}));
}

void ConvertRulesTest::lackOfMemoryWhileJoiningIsNamed()
{
    try {
        FileOutput output(FileDescriptor(-1), "o.pdf");
        writeDocument(output, {DocumentPart{"a.pdf"}}, -1, "", [] { throw std::bad_alloc(); });
        QFAIL("nothing was thrown");
    } catch (const ToolError &error) {
        QCOMPARE(error.result("convert").errors,
                 std::string("convert: cannot join the pages: not enough memory\n"));
    }
}

QTEST_APPLESS_MAIN(ConvertRulesTest)
#include "convertrules_test.moc"
