// Slow tools, noisy tools, and many of them.

#include "faults_fixture.h"
#include "opendescriptors.h"

#include <QDir>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

const QList<Mode> plainAndFull{singlePlain(), singleFull(), mergedPlain(), mergedFull()};

const ExpectedOutcomes oneImageDone{
    Outcome{u"c"_s, {u"a.pdf: convert(a.jpg)"_s}, 0, u"0/1"_s},
    Outcome{u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 0, u"0/1"_s, u"a.pdf"_s, u"a-1.pdf"_s},
    Outcome{u"c"_s, {u"a.pdf: convert(a.jpg)"_s}, 1, u"0/100"_s},
    Outcome{u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 1, u"0/100"_s}};

} // namespace

class FaultsLoadTest : public QObject
{
    Q_OBJECT

private slots:
    void windowAnswersWhileAToolTakesLongOrTalksMuch_data();
    void windowAnswersWhileAToolTakesLongOrTalksMuch();
    void sixtyImagesLoseNoFileAndKeepNoDescriptor();
};

void FaultsLoadTest::windowAnswersWhileAToolTakesLongOrTalksMuch_data()
{
    QTest::addColumn<QString>("convert");
    QTest::addColumn<QString>("pdftk");
    QTest::addColumn<Mode>("mode");
    for (const char *words : {"delay=5000", "noise=50000000"}) {
        for (const Mode &mode : plainAndFull) {
            QTest::addRow("convert %s, %s", words, mode.name)
                << QString::fromUtf8(words) << u""_s << mode;
            if (mode.hasOptions())
                QTest::addRow("pdftk %s, %s", words, mode.name)
                    << u""_s << QString::fromUtf8(words) << mode;
        }
    }
}

void FaultsLoadTest::windowAnswersWhileAToolTakesLongOrTalksMuch()
{
    QFETCH(QString, convert);
    QFETCH(QString, pdftk);
    QFETCH(Mode, mode);
    FaultFixture fixture(mode);
    fixture.find<QTableWidget>("inputfiletableWidget")->removeRow(1);
    fixture.scriptConvert(convert);
    fixture.scriptPdftk(pdftk);
    fixture.press("runButton");
    QVERIFY(fixture.waitForCalls(pdftk.isEmpty() ? 1 : 2));
    QVERIFY(fixture.answers()); // in the middle of the call
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), oneImageDone.of(mode)->summary());
}

void FaultsLoadTest::sixtyImagesLoseNoFileAndKeepNoDescriptor()
{
    FaultFixture fixture(singleFull());
    QStringList names;
    QStringList pdfs{u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s};
    for (int i = 0; i < 58; ++i) {
        const QString name = u"image-%1"_s.arg(i, 2, 10, QLatin1Char('0'));
        names << name + u".jpg"_s;
        pdfs << u"%1.pdf: pdftk(convert(%1.jpg))"_s.arg(name);
    }
    fixture.addImages(names);
    const qsizetype before = openDescriptors().size();
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(openDescriptors().size(), before);
    QCOMPARE(fixture.outputFiles(), pdfs);
    QCOMPARE(fixture.outcome().calls, u"cp"_s.repeated(60));
}

QTEST_MAIN(FaultsLoadTest)
#include "faults_load_test.moc"
