// Slow tools, noisy tools, and many of them.

#include "faults_fixture.h"

#include <QDir>
#include <QTableWidget>

namespace {

const QList<Mode> plainAndFull{allModes().at(0), allModes().at(3), allModes().at(4),
                               allModes().at(7)};

const ExpectedOutcomes oneImageDone{
    Outcome{"c", {"a.pdf: convert(a.jpg)"}, 0, "0/1"},
    Outcome{"cp", {"a.pdf: pdftk(convert(a.jpg))"}, 0, "0/1", "a.pdf", "a-1.pdf"},
    Outcome{"c", {"a.pdf: convert(a.jpg)"}, 1, "0/100"},
    Outcome{"cp", {"a.pdf: pdftk(convert(a.jpg))"}, 1, "0/100"}};

/// Open file descriptors of this process.
qsizetype descriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::System)
        .size();
}

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
            QTest::addRow("convert %s, %s", words, mode.name) << QString(words) << "" << mode;
            if (mode.hasOptions())
                QTest::addRow("pdftk %s, %s", words, mode.name) << "" << QString(words) << mode;
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
    fixture.tellConvert(convert);
    fixture.tellPdftk(pdftk);
    fixture.click("runButton");
    QVERIFY(fixture.waitForCalls(pdftk.isEmpty() ? 1 : 2));
    QVERIFY(fixture.answers()); // in the middle of the call
    QVERIFY(fixture.runUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().tellTale(), oneImageDone.of(mode)->tellTale());
}

void FaultsLoadTest::sixtyImagesLoseNoFileAndKeepNoDescriptor()
{
    FaultFixture fixture(allModes().at(3));
    QStringList names;
    QStringList pdfs{"a.pdf: pdftk(convert(a.jpg))", "b.pdf: pdftk(convert(b.png))"};
    for (int i = 0; i < 58; ++i) {
        const QString name = QStringLiteral("image-%1").arg(i, 2, 10, QLatin1Char('0'));
        names << name + ".jpg";
        pdfs << QStringLiteral("%1.pdf: pdftk(convert(%1.jpg))").arg(name);
    }
    fixture.addImages(names);
    const qsizetype before = descriptors();
    fixture.click("runButton");
    QVERIFY(fixture.runUntilQuiet());
    QCOMPARE(descriptors(), before);
    QCOMPARE(fixture.outputFiles(), pdfs);
    QCOMPARE(fixture.outcome().calls, QStringLiteral("cp").repeated(60));
}

QTEST_MAIN(FaultsLoadTest)
#include "faults_load_test.moc"
