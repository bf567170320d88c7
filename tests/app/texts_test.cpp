// The translation context of each text of the window, and the texts without one.

#include "layouttable.h"
#include "windowfixture.h"

#include <QMap>
#include <QSet>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// Translates nothing, and records who asked for a translation.
class Recorder : public QTranslator
{
public:
    Recorder() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        m_contexts[QString::fromUtf8(text)] << QString::fromUtf8(context);
        return {};
    }

    /// The contexts in which a text was looked up, sorted.
    QStringList contextsOf(const QString &text) const
    {
        QStringList contexts = m_contexts.value(text).values();
        contexts.sort();
        return contexts;
    }

private:
    mutable QMap<QString, QSet<QString>> m_contexts;
};

/// Everything in the window that shows a text.
void showEverything(WindowFixture &fixture)
{
    for (const char *button : {"openfileButton", "outputButton", "aboutpushButton", "runButton"}) {
        const ModalAnswer answer([](QWidget *) {});
        fixture.press(button);
    }
    fixture.addImages({u"a.jpg"_s});
    const ModalAnswer answer([](QWidget *) {});
    fixture.press("runButton"); // without an output folder
}

} // namespace

class TextsTest : public QObject
{
    Q_OBJECT

private slots:
    void layoutsTextsAreTheForms();
    void othersAreTheWindowsAndItsDialogs_data();
    void othersAreTheWindowsAndItsDialogs();
};

void TextsTest::layoutsTextsAreTheForms()
{
    const Recorder recorder;
    const WindowFixture fixture;
    int checked = 0;
    for (const LayoutRow &row : layoutTable) {
        const QString settings = QString::fromUtf8(row.settings);
        if (!settings.startsWith(u"text="_s))
            continue;
        const QString text = settings.section(QLatin1Char(';'), 0, 0).mid(5);
        if (text.isEmpty())
            continue;
        QCOMPARE(recorder.contextsOf(text), QStringList{u"process"_s});
        ++checked;
    }
    QVERIFY(checked > 20);
    for (const char *item : {"Image File", "File Size", "90", "A4 (210x297 mm)", "Zip"})
        QCOMPARE(recorder.contextsOf(QLatin1String(item)), QStringList{u"process"_s});
}

void TextsTest::othersAreTheWindowsAndItsDialogs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("contexts");
    const QStringList window{u"Process"_s};
    QTest::newRow("warning's title") << u"Empty input"_s << window;
    QTest::newRow("warning's text") << u"Please choose files to convert."_s << window;
    QTest::newRow("open dialog's caption") << u"Choose files to convert"_s << window;
    QTest::newRow("folder dialog's caption")
        << u"Browse a floder to save the converted files."_s << window;
    QTest::newRow("about box's text")
        << u"Tessaro Image to PDF Converter v2.0"_s << QStringList{u"AboutDialog"_s};
    QTest::newRow("option dialog's title") << u"Option"_s << QStringList{u"setDialog"_s};
    QTest::newRow("title of the other box, always English") << u"Invalid order"_s << QStringList{};
    QTest::newRow("text of the other box, always English")
        << u"Please specify an output folder."_s << QStringList{};
}

void TextsTest::othersAreTheWindowsAndItsDialogs()
{
    QFETCH(QString, text);
    const Recorder recorder;
    WindowFixture fixture;
    showEverything(fixture);
    QTEST(recorder.contextsOf(text), "contexts");
    QVERIFY(recorder.contextsOf(u"Tessaro Image to PDF Converter"_s).contains(u"Process"_s));
}

QTEST_MAIN(TextsTest)
#include "texts_test.moc"
