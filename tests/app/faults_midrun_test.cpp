// What a user can do during a run: change the list or the merge box, press again.

#include "faults_fixture.h"

#include <QTableWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Moment { WhileConverting, WhileFinishing };

using Action = std::function<void(FaultFixture &)>;

void addRow(FaultFixture &fixture)
{
    fixture.addImages({u"c.gif"_s});
}

void removeRow(FaultFixture &fixture, int row)
{
    fixture.find<QTableWidget>("inputfiletableWidget")->selectRow(row);
    fixture.press("removeButton");
}

void removeConvertedRow(FaultFixture &fixture)
{
    removeRow(fixture, 0);
}

void removeNextRow(FaultFixture &fixture)
{
    removeRow(fixture, 1);
}

void emptyList(FaultFixture &fixture)
{
    fixture.press("removeallButton");
}

void sortBackwards(FaultFixture &fixture)
{
    fixture.find<QTableWidget>("inputfiletableWidget")->sortByColumn(0, Qt::DescendingOrder);
}

void toggleMerging(FaultFixture &fixture)
{
    auto *box = fixture.find<QAbstractButton>("checkBox_joinpdf");
    box->setChecked(!box->isChecked());
}

const Outcome allDone{
    u"cc"_s, {u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.png)"_s}, 0, u"0/2"_s};
const Outcome onlyFirst{u"c"_s, {u"a.pdf: convert(a.jpg)"_s}, 0, u"0/2"_s};
const Outcome onlyFirstFinished{
    u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 0, u"0/2"_s, u"a.pdf"_s, u"a-1.pdf"_s};
const Outcome mergedDone{u"c"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"0/100"_s};
const Outcome mergedFinished{u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg|b.png))"_s}, 2, u"0/100"_s};

struct Change
{
    const char *name;
    Moment moment;
    Action action;
    ExpectedOutcomes outcomes;
};

// Moments are those of the first image.
const QList<Change> changes{
    {"row added while converting",
     WhileConverting,
     addRow,
     {Outcome{u"ccc"_s,
              {u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.png)"_s, u"c.pdf: convert(c.gif)"_s},
              0,
              u"0/3"_s},
      Outcome{u"cpcpcp"_s,
              {u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s,
               u"c.pdf: pdftk(convert(c.gif))"_s},
              0,
              u"0/3"_s,
              u"c.pdf"_s,
              u"c-1.pdf"_s},
      mergedDone, mergedFinished}},
    // The rows behind move up, so the count passes over the second image.
    {"row of the image at work removed",
     WhileConverting,
     removeConvertedRow,
     {onlyFirst, onlyFirstFinished, mergedDone, mergedFinished}},
    {"next row removed",
     WhileConverting,
     removeNextRow,
     {onlyFirst, onlyFirstFinished, mergedDone, mergedFinished}},
    // Only an entry looks at the list: after the last tool of a merged run there is none.
    {"list emptied",
     WhileConverting,
     emptyList,
     {Outcome{u"c"_s, {u"a.pdf: convert(a.jpg)"_s}, 1, u"1/2"_s, {}, {}, {u"Empty input"_s}},
      Outcome{u"cp"_s,
              {u"a.pdf: pdftk(convert(a.jpg))"_s},
              1,
              u"1/2"_s,
              u"a.pdf"_s,
              u"a-1.pdf"_s,
              {u"Empty input"_s}},
      mergedDone, mergedFinished}},
    // The rows change places: the image at work comes twice, the other one never.
    {"list sorted the other way round",
     WhileConverting,
     sortBackwards,
     {Outcome{u"cc"_s, {u"a.pdf: convert(a.jpg)"_s}, 0, u"0/2"_s},
      Outcome{
          u"cpcp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 0, u"0/2"_s, u"a.pdf"_s, u"a-1.pdf"_s},
      mergedDone, mergedFinished}},

    // The box is read at each entry, and once more when convert ends.
    {"merge box toggled while converting",
     WhileConverting,
     toggleMerging,
     {Outcome{u"cc"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"1/2"_s},
      Outcome{u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 1, u"1/2"_s}, mergedDone,
      Outcome{u"cp"_s,
              {u"a.pdf: pdftk(convert(a.jpg|b.png))"_s},
              0,
              u"0/100"_s,
              u"a.pdf"_s,
              u"a-1.pdf"_s}}},
    {"merge box toggled while finishing",
     WhileFinishing,
     toggleMerging,
     {{},
      Outcome{u"cpcp"_s, {u"a.pdf: pdftk(convert(a.jpg|b.png))"_s}, 2, u"1/2"_s},
      {},
      mergedFinished}},
};

struct Presses
{
    const char *name;
    int count;
    ExpectedOutcomes outcomes;
};

const Outcome allFinishedTwice{
    u"ccppcpcp"_s,
    {u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s},
    0,
    u"0/2"_s,
    u"b.pdf"_s,
    u"b-1.pdf"_s};

// Two chains share one count. The first to pass the end resets it, and the other
// one goes through all rows again.
const QList<Presses> presses{
    {"pressed twice",
     2,
     {Outcome{u"cccc"_s, allDone.files, 0, u"0/2"_s}, allFinishedTwice,
      Outcome{u"cc"_s, mergedDone.files, 2, u"0/100"_s},
      Outcome{u"ccpp"_s, mergedFinished.files, 2, u"0/100"_s}}},
    // The third press finds the count at the end and starts it over for both chains.
    {"pressed three times",
     3,
     {Outcome{u"cccccc"_s, allDone.files, 0, u"0/2"_s},
      {},
      Outcome{u"ccc"_s, mergedDone.files, 2, u"0/100"_s},
      Outcome{u"cccppp"_s, mergedFinished.files, 2, u"0/100"_s}}},
};

} // namespace

Q_DECLARE_METATYPE(Action)

class FaultsMidrunTest : public QObject
{
    Q_OBJECT

private slots:
    void changeDuringTheRun_data();
    void changeDuringTheRun();
    void runButtonPressedAgain_data();
    void runButtonPressedAgain();
    void threePressesWithOptionsEndWithEveryPdfFinished();
    void nextRunDeletesTheLastPdfOfTheOneBefore();
    void mergingDuringTheFinishingOfALaterImageLeavesBothItsFiles();
};

void FaultsMidrunTest::changeDuringTheRun_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<Action>("action");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<Outcome>("expected");
    for (const Change &change : changes) {
        for (const Mode &mode : allModes()) {
            if (const auto &outcome = change.outcomes.of(mode))
                QTest::addRow("%s, %s", change.name, mode.name)
                    << int(change.moment) << change.action << mode << *outcome;
        }
    }
}

void FaultsMidrunTest::changeDuringTheRun()
{
    QFETCH(int, moment);
    QFETCH(Action, action);
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    FaultFixture fixture(mode);
    const QString gate = fixture.holdTool();
    fixture.scriptConvert(moment == WhileConverting ? gate : QString());
    fixture.scriptPdftk(moment == WhileFinishing ? gate : QString());
    fixture.press("runButton");
    QVERIFY(fixture.waitForCalls(moment == WhileConverting ? 1 : 2));
    QVERIFY(fixture.answers());

    action(fixture);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

void FaultsMidrunTest::runButtonPressedAgain_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<Outcome>("expected");
    for (const Presses &row : presses) {
        for (const Mode &mode : allModes()) {
            if (const auto &outcome = row.outcomes.of(mode))
                QTest::addRow("%s, %s", row.name, mode.name) << row.count << mode << *outcome;
        }
    }
}

void FaultsMidrunTest::runButtonPressedAgain()
{
    QFETCH(int, count);
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    FaultFixture fixture(mode);
    const QString gate = fixture.holdTool();
    fixture.scriptConvert(gate);
    fixture.scriptPdftk(gate);
    for (int i = 0; i < count; ++i)
        fixture.press("runButton");
    const int chains = mode.merged ? count : 2; // the third press finds no row left
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), count > chains ? 0 : 2);
    QVERIFY(fixture.waitForCalls(chains));
    QVERIFY(fixture.answers());

    // The chains are kept in step, so that what follows is the same at every run.
    fixture.openGate();
    QVERIFY(fixture.waitForToolsAlone());
    fixture.holdTool();
    if (mode.hasOptions()) {
        QVERIFY(fixture.waitForCalls(qsizetype(2) * chains));
        fixture.openGate();
        QVERIFY(fixture.waitForToolsAlone());
    }
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

void FaultsMidrunTest::threePressesWithOptionsEndWithEveryPdfFinished()
{
    FaultFixture fixture(singleFull());
    fixture.scriptConvert(fixture.holdTool());
    for (int i = 0; i < 3; ++i)
        fixture.press("runButton");
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    // The chains overtake each other, but the last one to end has gone through every row alone.
    Outcome outcome = fixture.outcome();
    std::ranges::sort(outcome.calls);
    Outcome expected = allFinishedTwice;
    expected.calls = u"ccccccpppppp"_s;
    QCOMPARE(outcome.summary(), expected.summary());
}

void FaultsMidrunTest::nextRunDeletesTheLastPdfOfTheOneBefore()
{
    FaultFixture fixture(singleFull());
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    fixture.press("removeallButton");
    fixture.addImages({u"c.gif"_s});
    fixture.press("runButton"); // other images, with options all the same
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(),
             QStringList({u"a.pdf: pdftk(convert(a.jpg))"_s, u"c.pdf: pdftk(convert(c.gif))"_s}));
}

void FaultsMidrunTest::mergingDuringTheFinishingOfALaterImageLeavesBothItsFiles()
{
    FaultFixture fixture(singleFull());
    const QString gate = fixture.holdTool();
    fixture.press("runButton");
    fixture.scriptPdftk(gate);
    QVERIFY(fixture.waitForCalls(2));
    fixture.openGate();
    QVERIFY(fixture.waitForToolsAlone());
    fixture.holdTool();
    QVERIFY(fixture.waitForCalls(4)); // pdftk has b.pdf
    toggleMerging(fixture);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(),
             QStringList({u"a.pdf: pdftk(convert(a.jpg|b.png))"_s,
                          u"b-1.pdf: pdftk(convert(b.png))"_s, u"b.pdf: convert(b.png)"_s}));
}

QTEST_MAIN(FaultsMidrunTest)
#include "faults_midrun_test.moc"
