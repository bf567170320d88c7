// What a user can do to a run that is under way: change the list, the merge box, press again.

#include "faults_fixture.h"

#include <QTableWidget>

#include <algorithm>

namespace {

enum Moment { WhileConverting, WhileFinishing };

using Action = std::function<void(FaultFixture &)>;

void addRow(FaultFixture &fixture)
{
    fixture.addImages({"c.gif"});
}

void removeRow(FaultFixture &fixture, int row)
{
    fixture.find<QTableWidget>("inputfiletableWidget")->selectRow(row);
    fixture.click("removeButton");
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
    fixture.click("removeallButton");
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

const Outcome allDone{"cc", {"a.pdf: convert(a.jpg)", "b.pdf: convert(b.png)"}, 0, "0/2"};
const Outcome onlyFirst{"c", {"a.pdf: convert(a.jpg)"}, 0, "0/2"};
const Outcome onlyFirstFinished{"cp",     {"a.pdf: pdftk(convert(a.jpg))"}, 0, "0/2", "a.pdf",
                                "a-1.pdf"};
const Outcome mergedDone{"c", {"a.pdf: convert(a.jpg|b.png)"}, 2, "0/100"};
const Outcome mergedFinished{"cp", {"a.pdf: pdftk(convert(a.jpg|b.png))"}, 2, "0/100"};

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
     {Outcome{"ccc",
              {"a.pdf: convert(a.jpg)", "b.pdf: convert(b.png)", "c.pdf: convert(c.gif)"},
              0,
              "0/3"},
      Outcome{"cpcpcp",
              {"a.pdf: pdftk(convert(a.jpg))", "b.pdf: pdftk(convert(b.png))",
               "c.pdf: pdftk(convert(c.gif))"},
              0,
              "0/3",
              "c.pdf",
              "c-1.pdf"},
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
     {Outcome{"c", {"a.pdf: convert(a.jpg)"}, 1, "1/2", {}, {}, {"Empty input"}},
      Outcome{
          "cp", {"a.pdf: pdftk(convert(a.jpg))"}, 1, "1/2", "a.pdf", "a-1.pdf", {"Empty input"}},
      mergedDone, mergedFinished}},
    // The rows change places: the image at work comes twice, the other one never.
    {"list sorted the other way round",
     WhileConverting,
     sortBackwards,
     {Outcome{"cc", {"a.pdf: convert(a.jpg)"}, 0, "0/2"},
      Outcome{"cpcp", {"a.pdf: pdftk(convert(a.jpg))"}, 0, "0/2", "a.pdf", "a-1.pdf"}, mergedDone,
      mergedFinished}},

    // The box is read at each entry, and once more when convert ends.
    {"merge box toggled while converting",
     WhileConverting,
     toggleMerging,
     {Outcome{"cc", {"a.pdf: convert(a.jpg|b.png)"}, 2, "1/2"},
      Outcome{"cp", {"a.pdf: pdftk(convert(a.jpg))"}, 1, "1/2"}, mergedDone,
      Outcome{"cp", {"a.pdf: pdftk(convert(a.jpg|b.png))"}, 0, "0/100", "a.pdf", "a-1.pdf"}}},
    {"merge box toggled while finishing",
     WhileFinishing,
     toggleMerging,
     {{}, Outcome{"cpcp", {"a.pdf: pdftk(convert(a.jpg|b.png))"}, 2, "1/2"}, {}, mergedFinished}},
};

struct Presses
{
    const char *name;
    int count;
    ExpectedOutcomes outcomes;
};

const Outcome allFinishedTwice{
    "ccppcpcp", {"a.pdf: pdftk(convert(a.jpg))", "b.pdf: pdftk(convert(b.png))"}, 0, "0/2", "b.pdf",
    "b-1.pdf"};

// Two chains work through one count. Whichever passes the end first starts it over, and the other
// one goes through all rows again.
const QList<Presses> presses{
    {"pressed twice",
     2,
     {Outcome{"cccc", allDone.files, 0, "0/2"}, allFinishedTwice,
      Outcome{"cc", mergedDone.files, 2, "0/100"},
      Outcome{"ccpp", mergedFinished.files, 2, "0/100"}}},
    // The third press finds the count at the end and starts it over for both chains.
    {"pressed three times",
     3,
     {Outcome{"cccccc", allDone.files, 0, "0/2"},
      {},
      Outcome{"ccc", mergedDone.files, 2, "0/100"},
      Outcome{"cccppp", mergedFinished.files, 2, "0/100"}}},
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
    const QString gate = fixture.closeGate();
    fixture.tellConvert(moment == WhileConverting ? gate : QString());
    fixture.tellPdftk(moment == WhileFinishing ? gate : QString());
    fixture.click("runButton");
    QVERIFY(fixture.waitForCalls(moment == WhileConverting ? 1 : 2));
    QVERIFY(fixture.answers());

    action(fixture);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().tellTale(), expected.tellTale());
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
    const QString gate = fixture.closeGate();
    fixture.tellConvert(gate);
    fixture.tellPdftk(gate);
    for (int i = 0; i < count; ++i)
        fixture.click("runButton");
    const int chains = mode.merged ? count : 2; // the third press finds no row left
    QVERIFY(fixture.waitForCalls(chains));
    QVERIFY(fixture.answers());

    // The chains are kept in step, so that what follows is the same at every run.
    fixture.openGate();
    QVERIFY(fixture.waitForToolsAlone());
    fixture.closeGate();
    if (mode.hasOptions()) {
        QVERIFY(fixture.waitForCalls(qsizetype(2) * chains));
        fixture.openGate();
        QVERIFY(fixture.waitForToolsAlone());
    }
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().tellTale(), expected.tellTale());
}

void FaultsMidrunTest::threePressesWithOptionsEndWithEveryPdfFinished()
{
    FaultFixture fixture(allModes().at(3));
    fixture.tellConvert(fixture.closeGate());
    for (int i = 0; i < 3; ++i)
        fixture.click("runButton");
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    // The chains overtake each other, but the last one to end has gone through every row alone.
    Outcome outcome = fixture.outcome();
    std::ranges::sort(outcome.calls);
    Outcome expected = allFinishedTwice;
    expected.calls = QStringLiteral("ccccccpppppp");
    QCOMPARE(outcome.tellTale(), expected.tellTale());
}

void FaultsMidrunTest::nextRunDeletesTheLastPdfOfTheOneBefore()
{
    FaultFixture fixture(allModes().at(3));
    fixture.click("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    fixture.click("removeallButton");
    fixture.addImages({"c.gif"});
    fixture.click("runButton"); // other images, with options all the same
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(),
             QStringList({"a.pdf: pdftk(convert(a.jpg))", "c.pdf: pdftk(convert(c.gif))"}));
}

void FaultsMidrunTest::mergingDuringTheFinishingOfALaterImageLeavesBothItsFiles()
{
    FaultFixture fixture(allModes().at(3));
    const QString gate = fixture.closeGate();
    fixture.click("runButton");
    fixture.tellPdftk(gate);
    QVERIFY(fixture.waitForCalls(2));
    fixture.openGate();
    QVERIFY(fixture.waitForToolsAlone());
    fixture.closeGate();
    QVERIFY(fixture.waitForCalls(4)); // pdftk has b.pdf
    toggleMerging(fixture);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(),
             QStringList({"a.pdf: pdftk(convert(a.jpg|b.png))", "b-1.pdf: pdftk(convert(b.png))",
                          "b.pdf: convert(b.png)"}));
}

QTEST_MAIN(FaultsMidrunTest)
#include "faults_midrun_test.moc"
