// The window's texts: in the user's language, Qt's too, and two that stay English.

#include "translation.h"
#include "windowfixture.h"

#include <QApplication>
#include <QLabel>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/// Title and text of the box that the run button brings up.
QStringList boxOf(WindowFixture &fixture)
{
    QStringList texts;
    ModalAnswer answer([&texts](QWidget *widget) {
        if (const auto *box = qobject_cast<QMessageBox *>(widget))
            texts = QStringList{box->windowTitle(), box->text()};
    });
    fixture.press("runButton");
    if (!answer.happened())
        qFatal("no box came");
    return texts;
}

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { installTranslators(*qApp, {}); }
    void cleanupTestCase() { installTranslators(*qApp, {}); }
    void everyKindOfTextIsTranslated();
    void englishComesBackToTheLetter();
    void invalidOrderStaysEnglish_data();
    void invalidOrderStaysEnglish();
    void textsOfQtComeFromTheSystem();
    void windowRunsInItsLanguagesDirection_data();
    void windowRunsInItsLanguagesDirection();
    void programAsksTheEnvironment_data();
    void programAsksTheEnvironment();
};

void LanguagesTest::everyKindOfTextIsTranslated()
{
    installTranslators(*qApp, u"de"_s);
    WindowFixture fixture;
    QCOMPARE(fixture.window.windowTitle(), u"Tessaro Bild-zu-PDF-Konverter"_s);
    QCOMPARE(fixture.find<QLabel>("label_2")->text(), u"Vorschau"_s);
    const auto *button = fixture.find<QPushButton>("removeButton");
    QCOMPARE(button->text(), u"Entfernen"_s);
    QCOMPARE(button->toolTip(), u"Ausgew\u00e4hlte Bilder aus der Liste nehmen"_s);
    QCOMPARE(button->accessibleName(), u"Entfernen"_s);
    QCOMPARE(boxOf(fixture), QStringList({u"Keine Dateien"_s,
                                          u"Bitte w\u00e4hlen Sie die umzuwandelnden Dateien."_s}));
    QCOMPARE(ProcessProbe::aboutBox(fixture.window).windowTitle(), u"Info"_s);
}

void LanguagesTest::englishComesBackToTheLetter()
{
    installTranslators(*qApp, u"ar"_s);
    installTranslators(*qApp, {});
    WindowFixture fixture;
    QCOMPARE(fixture.find<QPushButton>("removeButton")->text(), u"Romove"_s);
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
    installTranslators(*qApp, language);
    WindowFixture fixture;
    QVERIFY(boxOf(fixture).first() != QLatin1String("Empty input"));
    fixture.addImages({u"a.jpg"_s});
    QCOMPARE(boxOf(fixture),
             QStringList({u"Invalid order"_s, u"Please specify an output folder."_s}));
}

void LanguagesTest::textsOfQtComeFromTheSystem()
{
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    QCOMPARE(cancel(), u"Cancel"_s);
    QCoreApplication::setLibraryPaths({u"/nowhere"_s}); // as start-up narrows them
    installTranslators(*qApp, u"de"_s);
    QVERIFY2(QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_de.qm"_s),
             "install qt6-translations-l10n");
    QCOMPARE(cancel(), u"Abbrechen"_s);
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
    installTranslators(*qApp, language);
    WindowFixture fixture;
    QTEST(fixture.window.isRightToLeft(), "rightToLeft");
}

void LanguagesTest::programAsksTheEnvironment_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("messages");
    QTest::addColumn<QString>("answer");
    QTest::newRow("the messages' locale") << ""
                                          << "fr_CA.UTF-8"
                                          << "fr";
    QTest::newRow("the languages before the locale") << "de:fr"
                                                     << "it_IT.UTF-8"
                                                     << "de";
    QTest::newRow("the first that there is") << "eo:cs:de"
                                             << "it_IT.UTF-8"
                                             << "cs";
    QTest::newRow("English first") << "en_GB:de"
                                   << "de_DE.UTF-8"
                                   << "";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
}

void LanguagesTest::programAsksTheEnvironment()
{
    QFETCH(QString, language);
    QFETCH(QString, messages);
    QFETCH(QString, answer);
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LC_ALL", "LANG"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(u"LANGUAGE"_s, language);
    environment.insert(u"LC_MESSAGES"_s, messages);
    const auto answerTo = [&environment](const QString &argument) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(PROGRAM), {argument});
        if (!program.waitForFinished(60000))
            qFatal("the program does not end");
        return program.readAllStandardOutput() + program.readAllStandardError();
    };
    // One is answered before there is a window, the other after start-up is prepared.
    const QByteArray help = answerTo(u"--help"_s), complaint = answerTo(u"--nonsense"_s);
    installTranslators(*qApp, answer);
    const auto plain = [](const char *text) {
        return QCoreApplication::translate("CommandLine", text).toUtf8();
    };
    QVERIFY2(help.contains(plain("Turns images into PDF documents.")), help);
    const QByteArray expected =
        plain("There is no option %1; see --help.").replace("%1", "--nonsense");
    QVERIFY2(complaint.contains(expected), complaint);
}

QTEST_MAIN(LanguagesTest)
#include "languages_test.moc"
