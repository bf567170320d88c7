// In every language the tools are called and the files are written as in English, byte for byte.

#include "filedialoguser.h"
#include "translation.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

/// The command lines of each single choice.
QStringList optionsOf(WindowFixture &fixture)
{
    QStringList results;
    for (const char *name : {"comboBox_rotate", "comboBox_pagesize", "comboBox_compresstype"}) {
        auto *box = fixture.find<QComboBox>(name);
        for (int index = 0; index < box->count(); ++index) {
            box->setCurrentIndex(index);
            results << fixture.window.gettheoption();
        }
    }
    fixture.check("checkBox_monochrome");
    results << fixture.window.gettheoption();

    for (const char *name : {"checkBox_allowprint", "checkBox_allowmodify", "checkBox_allowcopy",
                             "checkBox_allowannotation"}) {
        fixture.check(name);
        results << fixture.window.getPdftkoptionPer();
    }
    for (const char *name : {"lineEdit_userpwd", "lineEdit_ownerpwd"}) {
        fixture.fill(name, QString::fromLatin1(name));
        results << fixture.window.getPdftkoptionPer();
    }
    for (const char *name :
         {"lineEdit_title", "lineEdit_subject", "lineEdit_keywords", "lineEdit_author"}) {
        fixture.fill(name, u"1234.5 \u0661 \u05d0 "_s + QString::fromLatin1(name));
        results << fixture.window.getPdftkoption()
                << QString::fromUtf8(contentBesideTheBundle(u"pdfa.txt"_s));
    }
    return results;
}

/// What both dialogs make of a choice: the rows, and the folders that they remember.
QStringList choicesOf(WindowFixture &fixture)
{
    QFile::remove(u"setting.ini"_s);
    QStringList patterns;
    ModalAnswer files([&](QWidget *dialog) {
        const QStringList filters = FileDialogFacts(dialog).filters;
        for (const QString &filter : filters)
            patterns << filter.mid(filter.lastIndexOf(u'('));
        chooseFiles(dialog, {fixture.makeFile(u"a.png"_s, QByteArray(1234567, u'x'))});
    });
    fixture.press("openfileButton");
    ModalAnswer folder([&](QWidget *dialog) { chooseFiles(dialog, {fixture.outputPath()}); });
    fixture.press("outputButton");
    if (!files.happened() || !folder.happened())
        qFatal("no dialog came");
    const auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    return patterns << table->item(0, 0)->text() << table->item(0, 1)->text()
                    << QString::fromUtf8(contentBesideTheBundle(u"setting.ini"_s));
}

/// What a run with all options on calls and leaves behind.
QStringList runOf(WindowFixture &fixture, bool merged)
{
    fixture.addImages({u"b.jpg"_s});
    fixture.check("checkBox_joinpdf", merged);
    fixture.press("runButton");
    if (!fixture.waitUntilQuiet())
        qFatal("the tools did not end");
    QStringList results;
    const QList<ToolCall> calls = fixture.calls();
    for (const ToolCall &call : calls)
        results << call.tool << call.arguments;
    return results << fixture.outputFiles()
                   << QString::fromUtf8(contentBesideTheBundle(u"pdfa.txt"_s));
}

QStringList resultsIn(const QString &language)
{
    installTranslators(*qApp, language);
    QStringList results;
    for (const bool merged : {false, true}) {
        WindowFixture fixture;
        results << optionsOf(fixture) << choicesOf(fixture) << runOf(fixture, merged);
        const QString folder = QFileInfo(fixture.outputPath()).path(); // another each time
        results.replaceInStrings(folder, u"FOLDER"_s);
    }
    return results;
}

} // namespace

class LanguageResultsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void resultsAreThoseOfEnglish_data();
    void resultsAreThoseOfEnglish();

private:
    QStringList english;
};

void LanguageResultsTest::initTestCase()
{
    english = resultsIn({});
    QVERIFY(english.contains(u" -rotate 270"_s));
    QVERIFY(english.filter(u"allow modifyannotations"_s).size() > 1);
}

void LanguageResultsTest::resultsAreThoseOfEnglish_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = translatedLanguages();
    for (const QString &language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void LanguageResultsTest::resultsAreThoseOfEnglish()
{
    QFETCH(QString, language);
    QCOMPARE(resultsIn(language), english);
}

QTEST_MAIN(LanguageResultsTest)
#include "language_results_test.moc"
