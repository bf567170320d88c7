#include "convertcall.h"
#include "convertlimits.h"
#include "damage.h"
#include "diagnosis.h"
#include "jpegshrink.h"
#include "losslessinfo.h"
#include "pdftkcall.h"
#include "text.h"
#include "words.h"

#include <QTest>

using Words = std::vector<std::string>;
using Size = unsigned long long;

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(Words)

/// The rules of the two tools that need neither the tools nor a file.
class ToolRules : public QObject
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
    void pdftkTailHidesPasswords_data();
    void pdftkTailHidesPasswords();
    void passwordsAreReadAsUtf8OrElseInTheLocalesCharset();
    void otherPdftkCallsAreNotOurs_data();
    void otherPdftkCallsAreNotOurs();
    void passwordsElsewhereAreRefused_data();
    void passwordsElsewhereAreRefused();
    void passwordsWithLineBreaksAreRefused_data();
    void passwordsWithLineBreaksAreRefused();
    void loggedArgumentsAreMasked_data();
    void loggedArgumentsAreMasked();
    void infoFileBecomesLossless_data();
    void infoFileBecomesLossless();
    void wordsAreReplacedWhole_data();
    void wordsAreReplacedWhole();
    void textIsDecoded_data();
    void textIsDecoded();
};

void ToolRules::convertCallIsSplit_data()
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

void ToolRules::convertCallIsSplit()
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

void ToolRules::otherConvertCallsAreNotOurs_data()
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

void ToolRules::otherConvertCallsAreNotOurs()
{
    QFETCH(Words, arguments);
    QVERIFY(!parseConvertCall(arguments));
}

void ToolRules::inputsGetPlainNames_data()
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

void ToolRules::inputsGetPlainNames()
{
    QFETCH(std::string, path);
    QFETCH(std::string, name);
    QCOMPARE(inputName(7, path), name);
}

void ToolRules::optionsThatChangePixels_data()
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

void ToolRules::optionsThatChangePixels()
{
    QFETCH(Words, options);
    QTEST(changesPixels(options), "changes");
}

void ToolRules::compressionIsAskedFor_data()
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

void ToolRules::compressionIsAskedFor()
{
    QFETCH(Words, options);
    QTEST(int(askedCompression(options)), "compression");
}

void ToolRules::jpegDecodersShrink_data()
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

void ToolRules::jpegDecodersShrink()
{
    QFETCH(Words, options);
    QFETCH(QSize, size);
    const PixelSize pixels = {static_cast<uint>(size.width()), static_cast<uint>(size.height())};
    QTEST(shrinkingOptions(options, pixels).value_or(Words{}), "shrinking");
}

void ToolRules::messagesTellOfDamage_data()
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

void ToolRules::messagesTellOfDamage()
{
    QFETCH(QByteArray, message);
    QTEST(tellOfDamage(message.toStdString()), "damage");
}

void ToolRules::runsAtOnceFitTheMachine_data()
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

void ToolRules::runsAtOnceFitTheMachine()
{
    QFETCH(int, cores);
    QFETCH(Size, ram);
    QTEST(int(mostAtOnce(static_cast<size_t>(cores), ram)), "atOnce");
}

void ToolRules::limitsFollowTheMachine_data()
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

void ToolRules::limitsFollowTheMachine()
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

void ToolRules::pdftkTailHidesPasswords_data()
{
    QTest::addColumn<Words>("tail");
    QTest::addColumn<Words>("shown");
    QTest::addColumn<Words>("answers");
    QTest::newRow("nothing") << Words{} << Words{} << Words{};
    QTest::newRow("both passwords and permissions")
        << Words{"owner_pw", "a", "user_pw", "b", "allow", "printing", "allow", "copycontents"}
        << Words{"owner_pw", "PROMPT",   "user_pw", "PROMPT",
                 "allow",    "printing", "allow",   "copycontents"}
        << Words{"a", "b"};
    QTest::newRow("a keyword as a password")
        << Words{"user_pw", "allow"} << Words{"user_pw", "PROMPT"} << Words{"allow"};
    QTest::newRow("a blank in a password")
        << Words{"owner_pw", "se", "cret", "allow", "printing"}
        << Words{"owner_pw", "PROMPT", "********", "allow", "printing"} << Words{"se"};
    QTest::newRow("33 characters: the tool would drop and print the last")
        << Words{"user_pw", std::string(32, 'x') + "y"} << Words{"user_pw", "PROMPT"}
        << Words{std::string(32, 'x')};
    QTest::newRow("equal passwords, which the tool refuses")
        << Words{"owner_pw", "a", "user_pw", "a"}
        << Words{"owner_pw", "********", "user_pw", "********"} << Words{};
    QTest::newRow("a keyword without a password")
        << Words{"user_pw"} << Words{"user_pw"} << Words{};
    QTest::newRow("keywords in capitals")
        << Words{"OWNER_PW", "a", "User_Pw", "b"}
        << Words{"OWNER_PW", "PROMPT", "User_Pw", "PROMPT"} << Words{"a", "b"};
    QTest::newRow("an input's password, which the tool refuses there")
        << Words{"input_pw", "a"} << Words{"input_pw", "********"} << Words{};
    QTest::newRow("32 characters of more than one byte")
        << Words{"user_pw", std::string(QString(40, QChar(0xFC)).toUtf8())}
        << Words{"user_pw", "PROMPT"} << Words{std::string(QString(32, QChar(0xFC)).toUtf8())};
}

void ToolRules::pdftkTailHidesPasswords()
{
    QFETCH(Words, tail);
    QFETCH(Words, shown);
    QFETCH(Words, answers);
    Words arguments = {"in.pdf", "update_info", "info", "output", "out.pdf"};
    arguments.insert(arguments.end(), tail.begin(), tail.end());
    const std::optional<PdftkCall> call = parsePdftkCall(arguments, "UTF-8");
    QVERIFY(call);
    QCOMPARE(call->input, std::string("in.pdf"));
    QCOMPARE(call->infoFile, std::string("info"));
    QCOMPARE(call->output, std::string("out.pdf"));
    QCOMPARE(call->tail, shown);
    Words given;
    for (const Prompt &prompt : call->passwords)
        given.push_back(prompt.answer);
    QCOMPARE(given, answers);
}

void ToolRules::passwordsAreReadAsUtf8OrElseInTheLocalesCharset()
{
    const std::optional<PdftkCall> call = parsePdftkCall(
        {"in.pdf", "output", "out.pdf", "owner_pw", "\xC3\xA9", "user_pw", "\xE8"}, "ISO-8859-1");
    QVERIFY(call);
    QCOMPARE(call->passwords.size(), size_t{2});
    QCOMPARE(call->passwords[0].answer, std::string("\xC3\xA9"));
    QCOMPARE(call->passwords[1].answer, std::string("\xC3\xA8"));
}

void ToolRules::otherPdftkCallsAreNotOurs_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::newRow("no arguments") << Words{};
    QTest::newRow("a question for the version") << Words{"--version"};
    QTest::newRow("another operation") << Words{"a.pdf", "cat", "1", "output", "o.pdf"};
    QTest::newRow("no output") << Words{"a.pdf", "update_info", "i"};
    QTest::newRow("standard output") << Words{"a.pdf", "output", "-"};
}

void ToolRules::otherPdftkCallsAreNotOurs()
{
    QFETCH(Words, arguments);
    QVERIFY(!parsePdftkCall(arguments, "UTF-8"));
}

void ToolRules::passwordsElsewhereAreRefused_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::newRow("an input's password") << Words{"a.pdf", "input_pw", "x", "output", "o.pdf"};
    QTest::newRow("another operation")
        << Words{"a.pdf", "cat", "1", "output", "o.pdf", "owner_pw", "x"};
    QTest::newRow("to standard output") << Words{"a.pdf", "output", "-", "user_pw", "x"};
    QTest::newRow("keywords in capitals") << Words{"a.pdf", "dump_data", "INPUT_PW", "x"};
}

void ToolRules::passwordsElsewhereAreRefused()
{
    QFETCH(Words, arguments);
    QVERIFY_THROWS_EXCEPTION(ToolError, parsePdftkCall(arguments, "UTF-8"));
}

void ToolRules::passwordsWithLineBreaksAreRefused_data()
{
    QTest::addColumn<std::string>("password");
    QTest::addColumn<std::string>("charset");
    const std::string utf8 = "UTF-8";
    QTest::newRow("a line feed") << std::string("a\nb") << utf8;
    QTest::newRow("a carriage return at the end") << std::string("ab\r") << utf8;
    QTest::newRow("a next line") << std::string("a\xC2\x85z") << utf8;
    QTest::newRow("a next line in Latin-1") << std::string("a\x85z") << std::string("ISO-8859-1");
    QTest::newRow("a line separator") << std::string("\xE2\x80\xA8") << utf8;
    QTest::newRow("a paragraph separator") << std::string("\xE2\x80\xA9") << utf8;
}

void ToolRules::passwordsWithLineBreaksAreRefused()
{
    QFETCH(std::string, password);
    QFETCH(std::string, charset);
    const Words arguments = {"in.pdf", "output", "o.pdf", "user_pw", password};
    QVERIFY_THROWS_EXCEPTION(ToolError, parsePdftkCall(arguments, charset));
}

void ToolRules::loggedArgumentsAreMasked_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::addColumn<Words>("masked");
    QTest::newRow("nothing to hide")
        << Words{"a.pdf", "cat", "output", "b.pdf"} << Words{"a.pdf", "cat", "output", "b.pdf"};
    QTest::newRow("passwords and their rests")
        << Words{"owner_pw", "a", "b", "allow", "printing", "user_pw", "c"}
        << Words{"owner_pw", "********", "********", "allow", "printing", "user_pw", "********"};
    QTest::newRow("a keyword as a password")
        << Words{"user_pw", "owner_pw", "x"} << Words{"user_pw", "********", "********"};
    QTest::newRow("an input's password")
        << Words{"a.pdf", "input_pw", "A=x", "output", "b.pdf"}
        << Words{"a.pdf", "input_pw", "********", "output", "********"};
    QTest::newRow("files that are called as keywords are")
        << Words{"owner_pw", "output", "o.pdf", "USER_PW", "x"}
        << Words{"owner_pw", "output", "o.pdf", "USER_PW", "********"};
}

void ToolRules::loggedArgumentsAreMasked()
{
    QFETCH(Words, arguments);
    QFETCH(Words, masked);
    QCOMPARE(maskedPdftkArguments(arguments), masked);
}

void ToolRules::infoFileBecomesLossless_data()
{
    QTest::addColumn<std::string>("content");
    QTest::addColumn<std::string>("charset");
    QTest::addColumn<std::string>("lossless");
    QTest::newRow("every pair gets its beginning")
        << std::string("InfoKey:Title\nInfoValue:a\nInfoKey:Author\nInfoValue:\n")
        << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: a\n"
                       "InfoBegin\nInfoKey: Author\nInfoValue: \n");
    QTest::newRow("blanks stay, special characters become entities")
        << std::string("InfoKey:Title\nInfoValue:  &amp;<\t\"'> \n") << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\n"
                       "InfoValue:   &#38;amp;&#60;&#9;&#34;&#39;&#62; \n");
    QTest::newRow("text beyond ASCII in UTF-8")
        << std::string("InfoKey:Title\nInfoValue:\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80\n")
        << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: &#252;&#8364;&#128512;\n");
    QTest::newRow("text beyond ASCII in the locale's charset")
        << std::string("InfoKey:Title\nInfoValue:\xFC\xA4\n") << std::string("ISO-8859-15")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: &#252;&#8364;\n");
    QTest::newRow("labels as lines of a value")
        << std::string("InfoKey:Title\nInfoValue:a\nInfoBegin\nInfoKey:x\n"
                       "InfoKey:Author\nInfoValue:b\n\n")
        << std::string("UTF-8")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: a&#10;InfoBegin&#10;InfoKey:x\n"
                       "InfoBegin\nInfoKey: Author\nInfoValue: b&#10;\n");
    QTest::newRow("a file in the newer form is left to the tool")
        << std::string("InfoBegin\nInfoKey: Title\nInfoValue: &#252;\n") << std::string("UTF-8")
        << std::string();
    QTest::newRow("another file is left to the tool")
        << std::string("PageMediaBegin\n") << std::string("UTF-8") << std::string();
}

void ToolRules::infoFileBecomesLossless()
{
    QFETCH(std::string, content);
    QFETCH(std::string, charset);
    QFETCH(std::string, lossless);
    QCOMPARE(losslessInfo(content, charset), lossless);
}

void ToolRules::wordsAreReplacedWhole_data()
{
    QTest::addColumn<std::string>("text");
    QTest::addColumn<std::string>("result");
    const auto row = [](const char *name, const char *text, const char *result) {
        QTest::newRow(name) << std::string(text) << std::string(result);
    };
    row("nothing", "", "");
    row("no word", "input-", "input-");
    row("the longest", "input-10 input-1", "tenth first");
    row("a shorter one before any sign", "input-1: input-1~ input-1!", "first: first~ first!");
    row("what was put in stays", "input-2", "input-1");
    row("at both ends", "input-10.input-10", "tenth.tenth");
}

void ToolRules::wordsAreReplacedWhole()
{
    QFETCH(std::string, text);
    QFETCH(std::string, result);
    const Replacements words = {
        {"input-1", "first"}, {"input-10", "tenth"}, {"input-11", "no"}, {"input-2", "input-1"}};
    QCOMPARE(replaced(text, words), result);
}

void ToolRules::textIsDecoded_data()
{
    QTest::addColumn<std::string>("bytes");
    QTest::addColumn<std::string>("charset");
    QTest::addColumn<std::string>("text");
    const std::string utf8 = "UTF-8", missing = "\xEF\xBF\xBD";
    QTest::newRow("UTF-8 stays") << std::string("\xC3\xBC\xF0\x9F\x98\x80") << utf8
                                 << std::string("\xC3\xBC\xF0\x9F\x98\x80");
    QTest::newRow("Latin-1") << std::string("a\xFC") << std::string("ISO-8859-1")
                             << std::string("a\xC3\xBC");
    QTest::newRow("malformed and overlong bytes")
        << std::string("a\xFF\xC0\x80z") << utf8 << "a" + missing + missing + missing + "z";
    QTest::newRow("an end that is cut off")
        << std::string("a\xE2\x82") << utf8 << "a" + missing + missing;
    QTest::newRow("half a surrogate pair")
        << std::string("\xED\xA0\x80z") << utf8 << missing + missing + missing + "z";
    QTest::newRow("beyond the last character")
        << std::string("\xF4\x90\x80\x80z") << utf8 << missing + "z";
    QTest::newRow("more than one buffer") << std::string(3000, '\xFC') << std::string("ISO-8859-1")
                                          << std::string(QString(3000, QChar(0xFC)).toUtf8());
    QTest::newRow("an unknown charset counts as UTF-8")
        << std::string("\xC3\xBC") << std::string("no-such-charset") << std::string("\xC3\xBC");
    QTest::newRow("nothing") << std::string() << utf8 << std::string();
}

void ToolRules::textIsDecoded()
{
    QFETCH(std::string, bytes);
    QFETCH(std::string, charset);
    QFETCH(std::string, text);
    QCOMPARE(encoded(decoded(bytes, charset)), text);
}

QTEST_APPLESS_MAIN(ToolRules)
#include "toolrules_test.moc"
