// Which of the program's languages a user gets.

#include "uilanguage.h"

#include <QTest>

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
    QTest::newRow("a language") << QStringList{"de"} << "de";
    QTest::newRow("a language of another country") << QStringList{"de-AT"} << "de";
    QTest::newRow("as the environment writes it") << QStringList{"de_CH"} << "de";
    QTest::newRow("a language that is missing") << QStringList{"eo"} << "";
    QTest::newRow("the second when the first is missing") << QStringList{"eo", "fr"} << "fr";
    QTest::newRow("the favourite before the others") << QStringList{"fr-FR", "fr", "de"} << "fr";
    QTest::newRow("English ends the search") << QStringList{"en-GB", "de"} << "";
    QTest::newRow("the C locale is English") << QStringList{"C", "de"} << "";
    QTest::newRow("English behind another") << QStringList{"de", "en"} << "de";
    QTest::newRow("Portuguese of Portugal") << QStringList{"pt-PT"} << "pt_BR";
    QTest::newRow("Portuguese") << QStringList{"pt"} << "pt_BR";
    QTest::newRow("Chinese of Taiwan") << QStringList{"zh-TW"} << "zh_TW";
    QTest::newRow("Chinese of Hong Kong") << QStringList{"zh-HK"} << "zh_TW";
    QTest::newRow("Chinese in traditional script") << QStringList{"zh-Hant"} << "zh_TW";
    QTest::newRow("Chinese of Singapore") << QStringList{"zh-SG"} << "zh_CN";
    QTest::newRow("Chinese") << QStringList{"zh"} << "zh_CN";
    QTest::newRow("Hebrew under its old name") << QStringList{"iw-IL"} << "he";
}

void UiLanguageTest::firstSuitingLanguageIsChosen()
{
    QFETCH(QStringList, wanted);
    QTEST(uiLanguage(wanted, {"de", "fr", "he", "pt_BR", "zh_CN", "zh_TW"}), "language");
}

QTEST_APPLESS_MAIN(UiLanguageTest)
#include "uilanguage_test.moc"
