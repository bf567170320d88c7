// Every way in which a tool can fail, in every mode of a conversion: the chain goes on whatever a
// tool does, stops where one cannot be started, and the window answers all along.

#include "faults_fixture.h"

#include <csignal>
#include <memory>

namespace {

// Shared ends of a run of a.jpg and b.png.

const Outcome allDone{"cc", {"a.pdf: convert(a.jpg)", "b.pdf: convert(b.png)"}, 0, "0/2"};
const Outcome allFinished{"cpcp",  {"a.pdf: pdftk(convert(a.jpg))", "b.pdf: pdftk(convert(b.png))"},
                          0,       "0/2",
                          "b.pdf", "b-1.pdf"};
const Outcome mergedDone{"c", {"a.pdf: convert(a.jpg|b.png)"}, 2, "0/100"};
const Outcome mergedFinished{"cp", {"a.pdf: pdftk(convert(a.jpg|b.png))"}, 2, "0/100"};

const Outcome noneDone{"cc", {}, 0, "0/2"};
const Outcome noneFinished{"cpcp", {}, 0, "0/2", "b.pdf", "b-1.pdf"};
const Outcome noMerged{"c", {}, 2, "0/100"};
const Outcome noMergedFinished{"cp", {}, 2, "0/100"};

const Outcome stoppedAtFirst{"", {}, 1, "1/2"};
const Outcome mergedNotStarted{"", {}, 2, "0/100"};
const Outcome hangsAtFirst{"c", {}, 1, "1/2"};

// The names of a pdftk run that never ends are kept as they went into its command line.
const Outcome firstNotFinished{"c", {"a.pdf: convert(a.jpg)"}, 1, "1/2", "\"a.pdf\"", "a-1.pdf"};
const Outcome mergedNotFinished{"c",      {"a.pdf: convert(a.jpg|b.png)"}, 2, "0/100", "\"a.pdf\"",
                                "a-1.pdf"};
const Outcome hangsAtFirstFinish{"cp", {"a.pdf: convert(a.jpg)"}, 1, "1/2", "\"a.pdf\"", "a-1.pdf"};
const Outcome hangsAtMergedFinish{
    "cp", {"a.pdf: convert(a.jpg|b.png)"}, 2, "0/100", "\"a.pdf\"", "a-1.pdf"};

const Outcome partialDone{"cc", {"a.pdf: partial", "b.pdf: partial"}, 0, "0/2"};
const Outcome partialThenFinished{
    "cpcp", {"a.pdf: pdftk(partial)", "b.pdf: pdftk(partial)"}, 0, "0/2", "b.pdf", "b-1.pdf"};
const Outcome partialMerged{"c", {"a.pdf: partial"}, 2, "0/100"};
const Outcome partialMergedThenFinished{"cp", {"a.pdf: pdftk(partial)"}, 2, "0/100"};
const Outcome partialFinish{"cpcp",   {"a.pdf: partial", "b.pdf: partial"}, 0, "0/2", "b.pdf",
                            "b-1.pdf"};
const Outcome partialMergedFinish{"cp", {"a.pdf: partial"}, 2, "0/100"};

struct ToolFault
{
    const char *name;
    const char *convert;
    const char *pdftk;
    ExpectedOutcomes outcomes;
};

const ExpectedOutcomes everythingWorks{allDone, allFinished, mergedDone, mergedFinished};
// Without the image tool's PDF there is nothing that pdftk could finish.
const ExpectedOutcomes nothingConverted{noneDone, noneFinished, noMerged, noMergedFinished};
// The window does not look at what a tool left: a part of a PDF counts as one.
const ExpectedOutcomes partsConverted{partialDone, partialThenFinished, partialMerged,
                                      partialMergedThenFinished};
// The PDF is deleted for the sake of one that never came.
const ExpectedOutcomes lostInFinishing{{}, noneFinished, {}, noMergedFinished};
const ExpectedOutcomes partsFinished{{}, partialFinish, {}, partialMergedFinish};

const ExpectedOutcomes noConvert{stoppedAtFirst, stoppedAtFirst, mergedNotStarted,
                                 mergedNotStarted};
const ExpectedOutcomes noPdftk{{}, firstNotFinished, {}, mergedNotFinished};

const QList<ToolFault> toolFaults{
    {"both tools work", "", "", everythingWorks},
    {"convert fails without a result", "output=none exit=1", "", nothingConverted},
    {"convert fails and leaves a part", "output=partial exit=1", "", partsConverted},
    {"convert succeeds without a result", "output=none", "", nothingConverted},
    {"convert fails with its whole result", "exit=1", "", everythingWorks},
    {"convert is killed before it writes", "output=none signal=9", "", nothingConverted},
    {"convert is killed while it writes", "output=partial signal=9", "", partsConverted},
    {"convert crashes while it writes", "output=partial signal=11", "", partsConverted},
    {"convert finds the disk full", "full", "", partsConverted},
    {"pdftk fails without a result", "", "output=none exit=1", lostInFinishing},
    {"pdftk fails and leaves a part", "", "output=partial exit=1", partsFinished},
    {"pdftk succeeds without a result", "", "output=none", lostInFinishing},
    {"pdftk is killed before it writes", "", "output=none signal=9", lostInFinishing},
    {"pdftk is killed while it writes", "", "output=partial signal=9", partsFinished},
    {"pdftk crashes while it writes", "", "output=partial signal=11", partsFinished},
    {"pdftk finds the disk full", "", "full", partsFinished},
    {"both tools fail", "output=none exit=1", "output=none exit=1", nothingConverted},

    // A tool that cannot be started ends the chain there.
    {"convert is missing", "missing", "", noConvert},
    {"convert is not executable", "not-executable", "", noConvert},
    {"pdftk is missing", "", "missing", noPdftk},
    {"pdftk is not executable", "", "not-executable", noPdftk},

    // What is to be seen as long as a tool hangs.
    {"convert never ends", "hang", "", {hangsAtFirst, hangsAtFirst, noMerged, noMerged}},
    {"pdftk never ends", "", "hang", {{}, hangsAtFirstFinish, {}, hangsAtMergedFinish}},
};

/// Takes a tool away if its words say so.
std::unique_ptr<ToolPlace> absentTool(const QString &tool, const QString &words)
{
    if (words == QLatin1String("missing"))
        return std::make_unique<ToolPlace>(tool, ToolPlace::Missing);
    if (words == QLatin1String("not-executable"))
        return std::make_unique<ToolPlace>(tool, ToolPlace::NotExecutable);
    return nullptr;
}

} // namespace

class FaultsToolsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyFaultEndsAsTheModeSays_data();
    void everyFaultEndsAsTheModeSays();
    void nextPressGoesOnBehindTheRowOfAMissingTool_data();
    void nextPressGoesOnBehindTheRowOfAMissingTool();
    void killedToolLetsTheRunGoOn();
};

void FaultsToolsTest::everyFaultEndsAsTheModeSays_data()
{
    QTest::addColumn<QString>("convert");
    QTest::addColumn<QString>("pdftk");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<Outcome>("expected");
    for (const ToolFault &fault : toolFaults) {
        for (const Mode &mode : allModes()) {
            if (const auto &outcome = fault.outcomes.of(mode))
                QTest::addRow("%s, %s", fault.name, mode.name)
                    << QString(fault.convert) << QString(fault.pdftk) << mode << *outcome;
        }
    }
}

void FaultsToolsTest::everyFaultEndsAsTheModeSays()
{
    QFETCH(QString, convert);
    QFETCH(QString, pdftk);
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    const auto convertAway = absentTool(QStringLiteral("convert"), convert);
    const auto pdftkAway = absentTool(QStringLiteral("pdftk"), pdftk);
    FaultFixture fixture(mode);
    fixture.tellConvert(convert);
    fixture.tellPdftk(pdftk);

    fixture.click("runButton");
    const bool hangs = convert == QLatin1String("hang") || pdftk == QLatin1String("hang");
    if (hangs)
        QTRY_COMPARE(fixture.outcome().tellTale(), expected.tellTale());
    else
        QVERIFY(fixture.waitUntilQuiet());

    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().tellTale(), expected.tellTale());
}

void FaultsToolsTest::nextPressGoesOnBehindTheRowOfAMissingTool_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<Outcome>("expected");
    QTest::newRow("convert was missing: the first image stays without a PDF")
        << "convert"
        << Outcome{"cp", {"b.pdf: pdftk(convert(b.png))"}, 0, "0/2", "b.pdf", "b-1.pdf"};
    QTest::newRow("pdftk was missing: the first PDF is deleted at the next entry")
        << "pdftk"
        << Outcome{"ccp", {"b.pdf: pdftk(convert(b.png))"}, 0, "0/2", "b.pdf", "b-1.pdf"};
}

void FaultsToolsTest::nextPressGoesOnBehindTheRowOfAMissingTool()
{
    QFETCH(QString, tool);
    QFETCH(Outcome, expected);
    auto away = std::make_unique<ToolPlace>(tool, ToolPlace::Missing);
    FaultFixture fixture(allModes().at(3));
    fixture.click("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    away.reset();
    fixture.click("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outcome().tellTale(), expected.tellTale());
}

void FaultsToolsTest::killedToolLetsTheRunGoOn()
{
    FaultFixture fixture(allModes().at(0));
    fixture.tellConvert("hang");
    fixture.click("runButton");
    QVERIFY(fixture.waitForCalls(1));
    fixture.tellConvert({});
    kill(static_cast<pid_t>(fixture.calls().first().pid), SIGKILL);
    QVERIFY(fixture.waitUntilQuiet());
    const Outcome expected{"cc", {"b.pdf: convert(b.png)"}, 0, "0/2"};
    QCOMPARE(fixture.outcome().tellTale(), expected.tellTale());
}

QTEST_MAIN(FaultsToolsTest)
#include "faults_tools_test.moc"
