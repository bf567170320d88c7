// What both programs do with words and text.

#include "text.h"

#include <QTest>

Q_DECLARE_METATYPE(std::string)

class TextRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void wordsAreReplacedWhole_data();
    void wordsAreReplacedWhole();
    void textIsDecoded_data();
    void textIsDecoded();
};

void TextRulesTest::wordsAreReplacedWhole_data()
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

void TextRulesTest::wordsAreReplacedWhole()
{
    QFETCH(std::string, text);
    QFETCH(std::string, result);
    const Replacements words = {
        {"input-1", "first"}, {"input-10", "tenth"}, {"input-11", "no"}, {"input-2", "input-1"}};
    QCOMPARE(replaced(text, words), result);
}

void TextRulesTest::textIsDecoded_data()
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

void TextRulesTest::textIsDecoded()
{
    QFETCH(std::string, bytes);
    QFETCH(std::string, charset);
    QFETCH(std::string, text);
    QCOMPARE(encoded(decoded(bytes, charset)), text);
}

QTEST_APPLESS_MAIN(TextRulesTest)
#include "textrules_test.moc"
