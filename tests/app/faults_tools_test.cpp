// Every way in which a tool can fail, in every mode of a conversion: the chain continues after
// any failure, stops if a tool cannot be started, and the window stays responsive.

#include "faults_fixture.h"

#include <csignal>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Shared ends of a run of a.jpg and b.png.

const Outcome allDone{
    u"cc"_s, {u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.png)"_s}, 0, u"0/2"_s};
const Outcome allFinished{
    u"cpcp"_s,  {u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s},
    0,          u"0/2"_s,
    u"b.pdf"_s, u"b-1.pdf"_s};
const Outcome mergedDone{u"c"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"0/100"_s};
const Outcome mergedFinished{u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg|b.png))"_s}, 2, u"0/100"_s};

const Outcome noneDone{u"cc"_s, {}, 0, u"0/2"_s};
const Outcome noneFinished{u"cpcp"_s, {}, 0, u"0/2"_s, u"b.pdf"_s, u"b-1.pdf"_s};
const Outcome noMerged{u"c"_s, {}, 2, u"0/100"_s};
const Outcome noMergedFinished{u"cp"_s, {}, 2, u"0/100"_s};

const Outcome stoppedAtFirst{u""_s, {}, 1, u"1/2"_s};
const Outcome mergedNotStarted{u""_s, {}, 2, u"0/100"_s};
const Outcome hangsAtFirst{u"c"_s, {}, 1, u"1/2"_s};

// The names of a pdftk run that never ends are kept as they went into its command line.
const Outcome firstNotFinished{
    u"c"_s, {u"a.pdf: convert(a.jpg)"_s}, 1, u"1/2"_s, u"\"a.pdf\""_s, u"a-1.pdf"_s};
const Outcome mergedNotFinished{
    u"c"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"0/100"_s, u"\"a.pdf\""_s, u"a-1.pdf"_s};
const Outcome hangsAtFirstFinish{
    u"cp"_s, {u"a.pdf: convert(a.jpg)"_s}, 1, u"1/2"_s, u"\"a.pdf\""_s, u"a-1.pdf"_s};
const Outcome hangsAtMergedFinish{
    u"cp"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"0/100"_s, u"\"a.pdf\""_s, u"a-1.pdf"_s};

const Outcome partialDone{u"cc"_s, {u"a.pdf: partial"_s, u"b.pdf: partial"_s}, 0, u"0/2"_s};
const Outcome partialThenFinished{
    u"cpcp"_s,   {u"a.pdf: pdftk(partial)"_s, u"b.pdf: pdftk(partial)"_s}, 0, u"0/2"_s, u"b.pdf"_s,
    u"b-1.pdf"_s};
const Outcome partialMerged{u"c"_s, {u"a.pdf: partial"_s}, 2, u"0/100"_s};
const Outcome partialMergedThenFinished{u"cp"_s, {u"a.pdf: pdftk(partial)"_s}, 2, u"0/100"_s};
const Outcome partialFinish{
    u"cpcp"_s, {u"a.pdf: partial"_s, u"b.pdf: partial"_s}, 0, u"0/2"_s, u"b.pdf"_s, u"b-1.pdf"_s};
const Outcome partialMergedFinish{u"cp"_s, {u"a.pdf: partial"_s}, 2, u"0/100"_s};

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
                    << QString::fromUtf8(fault.convert) << QString::fromUtf8(fault.pdftk) << mode
                    << *outcome;
        }
    }
}

void FaultsToolsTest::everyFaultEndsAsTheModeSays()
{
    QFETCH(QString, convert);
    QFETCH(QString, pdftk);
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    const auto convertAway = absentTool(u"convert"_s, convert);
    const auto pdftkAway = absentTool(u"pdftk"_s, pdftk);
    FaultFixture fixture(mode);
    fixture.scriptConvert(convert);
    fixture.scriptPdftk(pdftk);

    fixture.press("runButton");
    const bool hangs = convert == QLatin1String("hang") || pdftk == QLatin1String("hang");
    if (hangs)
        QTRY_COMPARE(fixture.outcome().summary(), expected.summary());
    else
        QVERIFY(fixture.waitUntilQuiet());

    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

void FaultsToolsTest::nextPressGoesOnBehindTheRowOfAMissingTool_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<Outcome>("expected");
    QTest::newRow("convert was missing: the first image stays without a PDF")
        << "convert"
        << Outcome{u"cp"_s,     {u"b.pdf: pdftk(convert(b.png))"_s}, 0, u"0/2"_s, u"b.pdf"_s,
                   u"b-1.pdf"_s};
    QTest::newRow("pdftk was missing: the first PDF is deleted at the next entry")
        << "pdftk"
        << Outcome{u"ccp"_s,    {u"b.pdf: pdftk(convert(b.png))"_s}, 0, u"0/2"_s, u"b.pdf"_s,
                   u"b-1.pdf"_s};
}

void FaultsToolsTest::nextPressGoesOnBehindTheRowOfAMissingTool()
{
    QFETCH(QString, tool);
    QFETCH(Outcome, expected);
    auto away = std::make_unique<ToolPlace>(tool, ToolPlace::Missing);
    FaultFixture fixture(singleFull());
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    away.reset();
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

void FaultsToolsTest::killedToolLetsTheRunGoOn()
{
    FaultFixture fixture(singlePlain());
    fixture.scriptConvert(u"hang"_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitForCalls(1));
    fixture.scriptConvert({});
    kill(static_cast<pid_t>(fixture.calls().first().pid), SIGKILL);
    QVERIFY(fixture.waitUntilQuiet());
    const Outcome expected{u"cc"_s, {u"b.pdf: convert(b.png)"_s}, 0, u"0/2"_s};
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

QTEST_MAIN(FaultsToolsTest)
#include "faults_tools_test.moc"
