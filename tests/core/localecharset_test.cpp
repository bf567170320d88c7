// The charset that the user's locale names, and text written in it.

#include "localecharset.h"

#include "charsets.h"
#include "privatelocales.h"

#include <QTest>

using namespace Qt::StringLiterals;

class LocaleCharsetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void charsetIsThatOfTheLocale_data();
    void charsetIsThatOfTheLocale();
    void narrowerVariablesCountWhenTheWiderAreUnset();
    void missingLocaleOfAnotherCategoryDoesNotCount();
    void textIsWrittenInTheCharset_data();
    void textIsWrittenInTheCharset();
    void whatTheCharsetLacksBecomesAQuestionMark_data();
    void whatTheCharsetLacksBecomesAQuestionMark();
    void longTextIsWhole();

private:
    PrivateLocales m_locales;
};

void LocaleCharsetTest::initTestCase()
{
    QVERIFY(m_locales.add(u"en_US"_s, u"ISO-8859-1"_s));
    QVERIFY(m_locales.add(u"ja_JP"_s, u"EUC-JP"_s));
    QVERIFY(m_locales.add(u"en_US"_s, u"GEORGIAN-PS"_s));
}

void LocaleCharsetTest::charsetIsThatOfTheLocale_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("charset");

    QTest::newRow("C counts as UTF-8") << QByteArray("C") << QByteArray("UTF-8");
    QTest::newRow("POSIX counts as UTF-8") << QByteArray("POSIX") << QByteArray("UTF-8");
    QTest::newRow("C with UTF-8") << QByteArray("C.UTF-8") << QByteArray("UTF-8");
    QTest::newRow("Western European") << QByteArray("en_US.ISO-8859-1") << QByteArray("ISO-8859-1");
    QTest::newRow("Japanese") << QByteArray("ja_JP.EUC-JP") << QByteArray("EUC-JP");
    QTest::newRow("one that Qt has no codec for")
        << QByteArray("en_US.GEORGIAN-PS") << QByteArray("GEORGIAN-PS");
    QTest::newRow("a locale that the machine does not have")
        << QByteArray("xx_XX.KOI8-R") << QByteArray("UTF-8");
}

void LocaleCharsetTest::charsetIsThatOfTheLocale()
{
    QFETCH(QByteArray, locale);
    m_locales.use(locale);
    QTEST(localeCharset(), "charset");
}

void LocaleCharsetTest::narrowerVariablesCountWhenTheWiderAreUnset()
{
    m_locales.use("");
    qputenv("LANG", "C.UTF-8");
    qputenv("LC_CTYPE", "en_US.ISO-8859-1");
    QCOMPARE(localeCharset(), QByteArray("ISO-8859-1"));
}

void LocaleCharsetTest::missingLocaleOfAnotherCategoryDoesNotCount()
{
    m_locales.use("");
    qputenv("LANG", "C.UTF-8");
    qputenv("LC_CTYPE", "en_US.ISO-8859-1");
    qputenv("LC_TIME", "xx_XX.KOI8-R");
    QCOMPARE(localeCharset(), QByteArray("ISO-8859-1"));
}

void LocaleCharsetTest::textIsWrittenInTheCharset_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("charset");
    QTest::addColumn<QByteArray>("bytes");
    const auto samples = charsetSamples();
    for (const auto &[charset, text, bytes] : samples)
        QTest::newRow(charset) << text << QByteArray(charset) << bytes;
    QTest::newRow("no text") << QString() << QByteArray("EUC-JP") << QByteArray();
    QTest::newRow("a last letter that might have composed with another")
        << u"\u00ca"_s << QByteArray("BIG5-HKSCS") << QByteArray("\x88\x66");
    QTest::newRow("an unknown charset counts as UTF-8")
        << u"\u00e9"_s << QByteArray("NO-SUCH") << QByteArray("\xC3\xA9");
}

void LocaleCharsetTest::textIsWrittenInTheCharset()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, charset);
    QTEST(encoded(text, charset), "bytes");
}

void LocaleCharsetTest::whatTheCharsetLacksBecomesAQuestionMark_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("charset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("one for each character, of any length in UTF-8")
        << u"a\u0424b\u65e5c\U0001F600d"_s << QByteArray("ISO-8859-1") << QByteArray("a?b?c?d");
    QTest::newRow("several in a row")
        << u"\u65e5\u672c\U0001F600"_s << QByteArray("KOI8-T") << QByteArray("???");
    QTest::newRow("behind a letter that waits for its accent")
        << u"\u00ca\U0001F600"_s << QByteArray("BIG5-HKSCS") << QByteArray("\x88\x66?");
    QTest::newRow("half a character, in UTF-8, too")
        << u"a"_s + QChar(0xD800) + u"b"_s << QByteArray("UTF-8") << QByteArray("a?b");
}

void LocaleCharsetTest::whatTheCharsetLacksBecomesAQuestionMark()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, charset);
    QTEST(encoded(text, charset), "bytes");
}

void LocaleCharsetTest::longTextIsWhole()
{
    QCOMPARE(encoded(QString(5000, QChar(0x65e5)), "EUC-JP"),
             QByteArray("\xC6\xFC").repeated(5000));
}

QTEST_GUILESS_MAIN(LocaleCharsetTest)
#include "localecharset_test.moc"
