// Which of the program's languages a user gets.

#include "uilanguage.h"

#include <QTest>

using namespace Qt::StringLiterals;

class UiLanguageTest : public QObject
{
    Q_OBJECT

private slots:
    void firstSuitingLanguageIsChosen_data();
    void firstSuitingLanguageIsChosen();
};

void UiLanguageTest::firstSuitingLanguageIsChosen_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("language");

    QTest::newRow("nothing wanted") << QStringList{} << "";
    QTest::newRow("a language") << QStringList{u"de"_s} << "de";
    QTest::newRow("a language of another country") << QStringList{u"de-AT"_s} << "de";
    QTest::newRow("as the environment writes it") << QStringList{u"de_CH"_s} << "de";
    QTest::newRow("a language that is missing") << QStringList{u"eo"_s} << "";
    QTest::newRow("the second when the first is missing") << QStringList{u"eo"_s, u"fr"_s} << "fr";
    QTest::newRow("the favourite before the others")
        << QStringList{u"fr-FR"_s, u"fr"_s, u"de"_s} << "fr";
    QTest::newRow("English ends the search") << QStringList{u"en-GB"_s, u"de"_s} << "";
    QTest::newRow("the C locale is English") << QStringList{u"C"_s, u"de"_s} << "";
    QTest::newRow("English behind another") << QStringList{u"de"_s, u"en"_s} << "de";
    QTest::newRow("Portuguese of Portugal") << QStringList{u"pt-PT"_s} << "pt_BR";
    QTest::newRow("Portuguese") << QStringList{u"pt"_s} << "pt_BR";
    QTest::newRow("Chinese of Taiwan") << QStringList{u"zh-TW"_s} << "zh_TW";
    QTest::newRow("Chinese of Hong Kong") << QStringList{u"zh-HK"_s} << "zh_TW";
    QTest::newRow("Chinese in traditional script") << QStringList{u"zh-Hant"_s} << "zh_TW";
    QTest::newRow("Chinese of Singapore") << QStringList{u"zh-SG"_s} << "zh_CN";
    QTest::newRow("Chinese") << QStringList{u"zh"_s} << "zh_CN";
    QTest::newRow("Hebrew under its old name") << QStringList{u"iw-IL"_s} << "he";
}

void UiLanguageTest::firstSuitingLanguageIsChosen()
{
    QFETCH(QStringList, wanted);
    QTEST(uiLanguage(wanted, {u"de"_s, u"fr"_s, u"he"_s, u"pt_BR"_s, u"zh_CN"_s, u"zh_TW"_s}),
          "language");
}

QTEST_APPLESS_MAIN(UiLanguageTest)
#include "uilanguage_test.moc"
