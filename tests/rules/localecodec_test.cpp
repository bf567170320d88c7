// The charset that the user's locale names.

#include "localecodec.h"

#include "privatelocales.h"

#include <QTest>
#include <QTextCodec>

using namespace Qt::StringLiterals;

class LocaleCodecTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void codecIsThatOfTheLocale_data();
    void codecIsThatOfTheLocale();
    void narrowerVariablesCountWhenTheWiderAreUnset();

private:
    PrivateLocales locales;
};

void LocaleCodecTest::initTestCase()
{
    QVERIFY(locales.add(u"en_US"_s, u"ISO-8859-1"_s));
    QVERIFY(locales.add(u"ja_JP"_s, u"EUC-JP"_s));
}

void LocaleCodecTest::codecIsThatOfTheLocale_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QByteArray>("codec");

    QTest::newRow("C counts as UTF-8") << QByteArray("C") << QByteArray("UTF-8");
    QTest::newRow("POSIX counts as UTF-8") << QByteArray("POSIX") << QByteArray("UTF-8");
    QTest::newRow("C with UTF-8") << QByteArray("C.UTF-8") << QByteArray("UTF-8");
    QTest::newRow("Western European") << QByteArray("en_US.ISO-8859-1") << QByteArray("ISO-8859-1");
    QTest::newRow("Japanese") << QByteArray("ja_JP.EUC-JP") << QByteArray("EUC-JP");
    QTest::newRow("a locale that the machine does not have")
        << QByteArray("xx_XX.KOI8-R") << QByteArray("UTF-8");
}

void LocaleCodecTest::codecIsThatOfTheLocale()
{
    QFETCH(QByteArray, locale);
    locales.use(locale);
    QTEST(localeCodec()->name(), "codec");
}

void LocaleCodecTest::narrowerVariablesCountWhenTheWiderAreUnset()
{
    locales.use("");
    qputenv("LANG", "C.UTF-8");
    qputenv("LC_CTYPE", "en_US.ISO-8859-1");
    QCOMPARE(localeCodec()->name(), QByteArray("ISO-8859-1"));
}

QTEST_GUILESS_MAIN(LocaleCodecTest)
#include "localecodec_test.moc"
