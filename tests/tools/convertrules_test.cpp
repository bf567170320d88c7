// The rules of our convert that need neither the real tool nor a file.

#include "convertcall.h"
#include "convertlimits.h"
#include "jpegscaling.h"
#include "magickwarnings.h"

#include <QTest>

using Words = std::vector<std::string>;
using Size = unsigned long long;

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(Words)

class ConvertRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void convertCallIsSplit_data();
    void convertCallIsSplit();
    void otherConvertCallsAreNotOurs_data();
    void otherConvertCallsAreNotOurs();
    void inputsGetPlainNames_data();
    void inputsGetPlainNames();
    void optionsThatChangePixels_data();
    void optionsThatChangePixels();
    void compressionIsAskedFor_data();
    void compressionIsAskedFor();
    void jpegDecodersShrink_data();
    void jpegDecodersShrink();
    void messagesTellOfDamage_data();
    void messagesTellOfDamage();
    void runsAtOnceFitTheMachine_data();
    void runsAtOnceFitTheMachine();
    void limitsFollowTheMachine_data();
    void limitsFollowTheMachine();
};

void ConvertRulesTest::convertCallIsSplit_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::addColumn<Words>("options");
    QTest::addColumn<Words>("inputs");
    QTest::newRow("no option, one image") << Words{"/a.png", "o.pdf"} << Words{} << Words{"/a.png"};
    QTest::newRow("every option, two images")
        << Words{"-resize", "595x842",     "-rotate", "90", "-compress",
                 "JPEG",    "-monochrome", "/a",      "/b", "o.pdf"}
        << Words{"-resize", "595x842", "-rotate", "90", "-compress", "JPEG", "-monochrome"}
        << Words{"/a", "/b"};
    QTest::newRow("the output begins with a dash")
        << Words{"/a.png", "-out/o.pdf"} << Words{} << Words{"/a.png"};
}

void ConvertRulesTest::convertCallIsSplit()
{
    QFETCH(Words, arguments);
    QFETCH(Words, options);
    QFETCH(Words, inputs);
    const std::optional<ConvertCall> call = parseConvertCall(arguments);
    QVERIFY(call);
    QCOMPARE(call->options, options);
    QCOMPARE(call->inputs, inputs);
    QCOMPARE(call->output, arguments.back());
}

void ConvertRulesTest::otherConvertCallsAreNotOurs_data()
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
    QTest::newRow("the standard input") << Words{"-", "o.pdf"};
}

void ConvertRulesTest::otherConvertCallsAreNotOurs()
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
    QTest::newRow("a turn by nothing") << Words{"-rotate", "0", "-compress", "zip"} << false;
    QTest::newRow("a turn") << Words{"-rotate", "90"} << true;
    QTest::newRow("a page size") << Words{"-resize", "595x842"} << true;
    QTest::newRow("black and white") << Words{"-compress", "JPEG", "-monochrome"} << true;
}

void ConvertRulesTest::optionsThatChangePixels()
{
    QFETCH(Words, options);
    QTEST(changesPixels(options), "changes");
}

void ConvertRulesTest::compressionIsAskedFor_data()
{
    QTest::addColumn<Words>("options");
    QTest::addColumn<int>("compression");
    const auto row = [](const char *name, const Words &options, Compression compression) {
        QTest::newRow(name) << options << int(compression);
    };
    row("none", {"-rotate", "0"}, Compression::Unset);
    row("JPEG", {"-compress", "JPEG"}, Compression::Jpeg);
    row("Zip as the window spells it", {"-compress", "zip"}, Compression::Zip);
    row("Group 4", {"-rotate", "0", "-compress", "Group4"}, Compression::Group4);
    row("another one", {"-compress", "None"}, Compression::Other);
    row("the last one counts", {"-compress", "JPEG", "-compress", "LZW"}, Compression::Other);
}

void ConvertRulesTest::compressionIsAskedFor()
{
    QFETCH(Words, options);
    QTEST(int(askedCompression(options)), "compression");
}

void ConvertRulesTest::jpegDecodersShrink_data()
{
    QTest::addColumn<Words>("options");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Words>("shrinking");
    const Words a4 = {"-resize", "595x842"};
    QTest::newRow("a scan for an A4 page")
        << a4 << QSize(2480, 3508)
        << Words{"-define", "jpeg:size=1240x1754", "-resize", "595x842!"};
    QTest::newRow("the other options stay")
        << Words{"-resize", "297x421", "-rotate", "90"} << QSize(4000, 3000)
        << Words{"-define", "jpeg:size=666x500", "-resize", "297x223!", "-rotate", "90"};
    QTest::newRow("just twice as large") << a4 << QSize(1190, 1684) << Words{};
    QTest::newRow("just four times as large")
        << a4 << QSize(2380, 3368)
        << Words{"-define", "jpeg:size=1190x1684", "-resize", "595x842!"};
    QTest::newRow("one pixel less") << a4 << QSize(2380, 3367) << Words{};
    QTest::newRow("larger than eight times")
        << a4 << QSize(32000, 32000)
        << Words{"-define", "jpeg:size=4000x4000", "-resize", "595x595!"};
    QTest::newRow("to be made larger") << a4 << QSize(20, 10) << Words{};
    QTest::newRow("turned before it is resized")
        << Words{"-rotate", "90", "-resize", "595x842"} << QSize(2480, 3508) << Words{};
    QTest::newRow("another way to give the size")
        << Words{"-resize", "50%"} << QSize(2480, 3508) << Words{};
    QTest::newRow("no readable header") << a4 << QSize(0, 0) << Words{};
}

void ConvertRulesTest::jpegDecodersShrink()
{
    QFETCH(Words, options);
    QFETCH(QSize, size);
    const PixelSize pixels = {static_cast<uint>(size.width()), static_cast<uint>(size.height())};
    QTEST(shrinkingOptions(options, pixels).value_or(Words{}), "shrinking");
}

void ConvertRulesTest::messagesTellOfDamage_data()
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
    row("Premature EOF at line 7 of strip 0 `Fax4Decode' @ warning/tiff.c/TIFFWarnings/", true);
    row("", false);
    row("Unknown field with tag 40000 `TIFFReadDirectory' @ warning/tiff.c/TIFFWarnings/", false);
    row("Corrupt JPEG data: 5 extraneous bytes before marker 0xd9 `a' @ warning/jpeg.c/", false);
    row("iCCP: known incorrect sRGB profile `a' @ warning/png.c/MagickPNGWarningHandler/", false);
}

void ConvertRulesTest::messagesTellOfDamage()
{
    QFETCH(QByteArray, message);
    QTEST(tellOfDamage(message.toStdString()), "damage");
}

void ConvertRulesTest::runsAtOnceFitTheMachine_data()
{
    constexpr Size gib = Size(1) << 30;
    QTest::addColumn<int>("cores");
    QTest::addColumn<Size>("ram");
    QTest::addColumn<int>("atOnce");
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
    QTEST(int(mostAtOnce(static_cast<size_t>(cores), ram)), "atOnce");
}

void ConvertRulesTest::limitsFollowTheMachine_data()
{
    constexpr Size gib = Size(1) << 30;
    QTest::addColumn<int>("atOnce");
    QTest::addColumn<int>("pages");
    QTest::addColumn<Size>("ram");
    QTest::addColumn<Size>("memory");
    QTest::addColumn<int>("seconds");
    QTest::newRow("a small machine gives two fifths") << 1 << 1 << 5 * gib << 2 * gib << 100;
    QTest::newRow("a large machine stays below 4 GiB") << 1 << 1 << 64 * gib << 13 * gib / 4 << 100;
    QTest::newRow("several runs share") << 2 << 1 << 64 * gib << 21 * gib / 16 << 100;
    QTest::newRow("many leave half to the decoders") << 5 << 1 << 64 * gib << 31 * gib / 80 << 100;
    QTest::newRow("every further page has its own time")
        << 1 << 200 << 5 * gib << 2 * gib << 100 + 199 * 30;
}

void ConvertRulesTest::limitsFollowTheMachine()
{
    QFETCH(int, atOnce);
    QFETCH(int, pages);
    QFETCH(Size, ram);
    QFETCH(Size, memory);
    QFETCH(int, seconds);
    const auto runs = static_cast<size_t>(atOnce);
    const ConvertLimits limits =
        limitsFor({runs, static_cast<size_t>(pages), 1 << 20}, ram, 400 * runs);
    QCOMPARE(limits.memory >> 20, memory >> 20);
    QCOMPARE(limits.disk, Size(300));
    QCOMPARE(limits.threads, atOnce == 1 ? 0 : 1);
    QCOMPARE(limits.time, std::chrono::seconds(seconds));
    const std::vector<ResourceLimit> kernel = kernelLimits(limits);
    QCOMPARE(kernel.front().resource, RLIMIT_DATA);
    QVERIFY(kernel.front().value * runs < Size(4) << 30);
}

QTEST_APPLESS_MAIN(ConvertRulesTest)
#include "convertrules_test.moc"
