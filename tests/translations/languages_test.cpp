// Which words the window shows: the user's own, Qt's with them, and two that stay English.

#include "translation.h"
#include "windowfixture.h"

#include <QApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QMessageBox>

namespace {

/// Title and text of the box that the run button brings up.
QStringList boxOf(WindowFixture &fixture)
{
    QStringList texts;
    ModalAnswer answer([&texts](QWidget *widget) {
        if (const auto *box = qobject_cast<QMessageBox *>(widget))
            texts = QStringList{box->windowTitle(), box->text()};
    });
    fixture.click("runButton");
    if (!answer.happened())
        qFatal("no box came");
    return texts;
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { speak(*qApp, {}); }
    void cleanupTestCase() { speak(*qApp, {}); }
    void everyKindOfTextIsTranslated();
    void englishComesBackToTheLetter();
    void invalidOrderStaysEnglish_data();
    void invalidOrderStaysEnglish();
    void textsOfQtComeFromTheSystem();
    void windowRunsInItsLanguagesDirection_data();
    void windowRunsInItsLanguagesDirection();
};

void LanguagesTest::everyKindOfTextIsTranslated()
{
    speak(*qApp, QStringLiteral("de"));
    WindowFixture fixture;
    QCOMPARE(fixture.window.windowTitle(), QStringLiteral("Tessaro Bild-zu-PDF-Konverter"));
    QCOMPARE(fixture.find<QLabel>("label_2")->text(), QStringLiteral("Vorschau"));
    const auto *button = fixture.find<QPushButton>("removeButton");
    QCOMPARE(button->text(), QStringLiteral("Entfernen"));
    QCOMPARE(button->toolTip(), QString::fromUtf8("Ausgew\u00e4hlte Bilder aus der Liste nehmen"));
    QCOMPARE(button->accessibleName(), QStringLiteral("Entfernen"));
    QCOMPARE(boxOf(fixture),
             QStringList({QStringLiteral("Keine Dateien"),
                          QString::fromUtf8("Bitte w\u00e4hlen Sie die umzuwandelnden Dateien.")}));
    QCOMPARE(ProcessProbe::aboutBox(fixture.window).windowTitle(), QStringLiteral("Info"));
}

void LanguagesTest::englishComesBackToTheLetter()
{
    speak(*qApp, QStringLiteral("ar"));
    speak(*qApp, {});
    WindowFixture fixture;
    QCOMPARE(fixture.find<QPushButton>("removeButton")->text(), QStringLiteral("Romove"));
    QVERIFY(!fixture.window.isRightToLeft());
}

void LanguagesTest::invalidOrderStaysEnglish_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = translatedLanguages();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void LanguagesTest::invalidOrderStaysEnglish()
{
    QFETCH(QString, language);
    speak(*qApp, language);
    WindowFixture fixture;
    QVERIFY(boxOf(fixture).first() != QLatin1String("Empty input"));
    fixture.addImages({"a.jpg"});
    QCOMPARE(boxOf(fixture), QStringList({"Invalid order", "Please specify an output folder."}));
}

void LanguagesTest::textsOfQtComeFromTheSystem()
{
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
    QCoreApplication::setLibraryPaths({QStringLiteral("/nowhere")}); // as start-up narrows them
    speak(*qApp, QStringLiteral("de"));
    QVERIFY2(QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm"),
             "install qt6-translations-l10n");
    QCOMPARE(cancel(), QStringLiteral("Abbrechen"));
}

void LanguagesTest::windowRunsInItsLanguagesDirection_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("Arabic") << "ar" << true;
    QTest::newRow("Hebrew") << "he" << true;
    QTest::newRow("Hindi") << "hi" << false;
    QTest::newRow("English") << "" << false;
}

void LanguagesTest::windowRunsInItsLanguagesDirection()
{
    QFETCH(QString, language);
    speak(*qApp, language);
    WindowFixture fixture;
    QTEST(fixture.window.isRightToLeft(), "rightToLeft");
}

QTEST_MAIN(LanguagesTest)
#include "languages_test.moc"
