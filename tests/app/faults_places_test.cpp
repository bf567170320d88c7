// Folders, disks and images that go away, and an info file that cannot be written, in every mode.

#include "faults_fixture.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

using Action = std::function<void(FaultFixture &)>;

const Outcome noneFinished{u"cpcp"_s, {}, 0, u"0/2"_s, u"b.pdf"_s, u"b-1.pdf"_s};
const Outcome refused{u""_s, {}, 0, u"0/100"_s, {}, {}, {u"Invalid order"_s}};

void removeOutput(FaultFixture &fixture)
{
    QDir(fixture.outputPath()).removeRecursively();
}

void closeOutput(FaultFixture &fixture)
{
    fixture.setFolderWritable(false);
}

void removeSecondImage(FaultFixture &fixture)
{
    QFile::remove(fixture.inputPath(u"b.png"_s));
}

void removeFirstImage(FaultFixture &fixture)
{
    QFile::remove(fixture.inputPath(u"a.jpg"_s));
}

void replaceSecondImage(FaultFixture &fixture)
{
    removeSecondImage(fixture);
    fixture.makeFile(u"b.png"_s, "another image");
}

void replaceSecondImageByAFolder(FaultFixture &fixture)
{
    removeSecondImage(fixture);
    QDir().mkdir(fixture.inputPath(u"b.png"_s));
}

struct PlaceFault
{
    const char *name;
    Action action;
    ExpectedOutcomes outcomes;
};

const QList<PlaceFault> beforeTheRun{
    {"output folder removed", removeOutput, {refused, refused, refused, refused}},
    {"output folder read-only",
     closeOutput,
     {Outcome{u"cc"_s, {}, 0, u"0/2"_s}, noneFinished, Outcome{u"c"_s, {}, 2, u"0/100"_s},
      Outcome{u"cp"_s, {}, 2, u"0/100"_s}}},
    {"first image removed",
     removeFirstImage,
     {Outcome{u"cc"_s, {u"b.pdf: convert(b.png)"_s}, 0, u"0/2"_s},
      Outcome{
          u"cpcp"_s, {u"b.pdf: pdftk(convert(b.png))"_s}, 0, u"0/2"_s, u"b.pdf"_s, u"b-1.pdf"_s},
      Outcome{u"c"_s, {}, 2, u"0/100"_s}, Outcome{u"cp"_s, {}, 2, u"0/100"_s}}},
};

// While the first call of convert is held back.
const QList<PlaceFault> duringTheRun{
    // The next entry of a one-by-one run finds the folder gone and asks for another; a merged run
    // has no next entry.
    {"output folder removed",
     removeOutput,
     {Outcome{u"c"_s, {}, 1, u"1/2"_s, {}, {}, {u"Invalid order"_s}},
      Outcome{u"cp"_s, {}, 1, u"1/2"_s, u"a.pdf"_s, u"a-1.pdf"_s, {u"Invalid order"_s}},
      Outcome{u"c"_s, {}, 2, u"0/100"_s}, Outcome{u"cp"_s, {}, 2, u"0/100"_s}}},
    {"output folder made read-only",
     closeOutput,
     {Outcome{u"cc"_s, {}, 0, u"0/2"_s}, noneFinished, Outcome{u"c"_s, {}, 2, u"0/100"_s},
      Outcome{u"cp"_s, {}, 2, u"0/100"_s}}},
    {"second image removed",
     removeSecondImage,
     {Outcome{u"cc"_s, {u"a.pdf: convert(a.jpg)"_s}, 0, u"0/2"_s},
      Outcome{
          u"cpcp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 0, u"0/2"_s, u"b.pdf"_s, u"b-1.pdf"_s},
      Outcome{u"c"_s, {}, 2, u"0/100"_s}, Outcome{u"cp"_s, {}, 2, u"0/100"_s}}},
    // The window holds names and nothing of the images: a tool reads what is there at its turn.
    {"second image replaced",
     replaceSecondImage,
     {Outcome{u"cc"_s, {u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.png)"_s}, 0, u"0/2"_s},
      Outcome{u"cpcp"_s,
              {u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s},
              0,
              u"0/2"_s,
              u"b.pdf"_s,
              u"b-1.pdf"_s},
      Outcome{u"c"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"0/100"_s},
      Outcome{u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg|b.png))"_s}, 2, u"0/100"_s}}},
    {"second image replaced by a folder",
     replaceSecondImageByAFolder,
     {Outcome{u"cc"_s, {u"a.pdf: convert(a.jpg)"_s}, 0, u"0/2"_s},
      Outcome{
          u"cpcp"_s, {u"a.pdf: pdftk(convert(a.jpg))"_s}, 0, u"0/2"_s, u"b.pdf"_s, u"b-1.pdf"_s},
      Outcome{u"c"_s, {}, 2, u"0/100"_s}, Outcome{u"cp"_s, {}, 2, u"0/100"_s}}},
};

void addPlaceFaults(const QList<PlaceFault> &faults)
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<Outcome>("expected");
    for (const PlaceFault &fault : faults) {
        for (const Mode &mode : allModes())
            QTest::addRow("%s, %s", fault.name, mode.name)
                << fault.action << mode << *fault.outcomes.of(mode);
    }
}

/// A folder where the info file should be: no user can open that for writing, not even root.
class InfoFileInTheWay
{
public:
    InfoFileInTheWay()
    {
        QFile::remove(name);
        QDir().mkdir(name);
    }
    ~InfoFileInTheWay() { QDir().rmdir(name); }

private:
    const QString name = u"pdfa.txt"_s;
};

} // namespace

Q_DECLARE_METATYPE(Action)

class FaultsPlacesTest : public QObject
{
    Q_OBJECT

private slots:
    void faultBeforeTheRun_data();
    void faultBeforeTheRun();
    void faultDuringTheRun_data();
    void faultDuringTheRun();
    void pdfsWithADescriptionAreLostWithoutAnInfoFile_data();
    void pdfsWithADescriptionAreLostWithoutAnInfoFile();
    void olderPdfStandsInForTheOneThatFailed_data();
    void olderPdfStandsInForTheOneThatFailed();
    void folderFieldIsEmptiedByTheBoxAlone_data();
    void folderFieldIsEmptiedByTheBoxAlone();
};

void FaultsPlacesTest::faultBeforeTheRun_data()
{
    addPlaceFaults(beforeTheRun);
}

void FaultsPlacesTest::faultBeforeTheRun()
{
    QFETCH(Action, action);
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    FaultFixture fixture(mode);
    action(fixture);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

void FaultsPlacesTest::faultDuringTheRun_data()
{
    addPlaceFaults(duringTheRun);
}

void FaultsPlacesTest::faultDuringTheRun()
{
    QFETCH(Action, action);
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    FaultFixture fixture(mode);
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    QVERIFY(fixture.waitForCalls(1));
    QVERIFY(fixture.answers());
    action(fixture);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
}

void FaultsPlacesTest::pdfsWithADescriptionAreLostWithoutAnInfoFile_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<Outcome>("expected");
    const QList<Outcome> outcomes{
        {u"cc"_s, {u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.png)"_s}, 0, u"0/2"_s},
        noneFinished,
        {u"cpcp"_s,
         {u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s},
         0,
         u"0/2"_s,
         u"b.pdf"_s,
         u"b-1.pdf"_s},
        noneFinished,
        {u"c"_s, {u"a.pdf: convert(a.jpg|b.png)"_s}, 2, u"0/100"_s},
        {u"cp"_s, {}, 2, u"0/100"_s},
        {u"cp"_s, {u"a.pdf: pdftk(convert(a.jpg|b.png))"_s}, 2, u"0/100"_s},
        {u"cp"_s, {}, 2, u"0/100"_s},
    };
    QCOMPARE(outcomes.size(), allModes().size());
    for (qsizetype i = 0; i < outcomes.size(); ++i)
        QTest::newRow(allModes().at(i).name) << allModes().at(i) << outcomes.at(i);
}

void FaultsPlacesTest::pdfsWithADescriptionAreLostWithoutAnInfoFile()
{
    QFETCH(Mode, mode);
    QFETCH(Outcome, expected);
    FaultFixture fixture(mode);
    const InfoFileInTheWay inTheWay;
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.answers());
    QCOMPARE(fixture.outcome().summary(), expected.summary());
    if (mode.title)
        QCOMPARE(fixture.calls().at(1).arguments.mid(0, 3),
                 QStringList({fixture.outputPath(u"a.pdf111"_s), u"output"_s,
                              fixture.outputPath(u"a-1.pdf"_s)}));
}

void FaultsPlacesTest::olderPdfStandsInForTheOneThatFailed_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("pdftk");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("left alone without options")
        << singlePlain() << "" << QStringList{u"a.pdf: older"_s};
    QTest::newRow("finished with options")
        << singleFull() << "" << QStringList{u"a.pdf: pdftk(older)"_s};
    QTest::newRow("lost when it cannot be finished")
        << singleFull() << "output=none exit=1" << QStringList{};
    QTest::newRow("left alone without options, merged")
        << mergedPlain() << "" << QStringList{u"a.pdf: older"_s};
    QTest::newRow("finished with options, merged")
        << mergedFull() << "" << QStringList{u"a.pdf: pdftk(older)"_s};
}

void FaultsPlacesTest::olderPdfStandsInForTheOneThatFailed()
{
    QFETCH(Mode, mode);
    QFETCH(QString, pdftk);
    FaultFixture fixture(mode);
    QFile older(fixture.outputPath(u"a.pdf"_s));
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("older") > 0);
    older.close();
    fixture.scriptConvert(u"output=none exit=1"_s);
    fixture.scriptPdftk(pdftk);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QTEST(fixture.outputFiles(), "files");
}

void FaultsPlacesTest::folderFieldIsEmptiedByTheBoxAlone_data()
{
    QTest::addColumn<bool>("merged");
    QTest::addColumn<bool>("emptied");
    QTest::newRow("the next image asks for a folder") << false << true;
    QTest::newRow("a merged run never looks again") << true << false;
}

void FaultsPlacesTest::folderFieldIsEmptiedByTheBoxAlone()
{
    QFETCH(bool, merged);
    QFETCH(bool, emptied);
    FaultFixture fixture(merged ? mergedPlain() : singlePlain());
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    QVERIFY(fixture.waitForCalls(1));
    removeOutput(fixture);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.find<QLineEdit>("outputfolderEdit")->text(),
             emptied ? QString() : fixture.outputPath());
}

QTEST_MAIN(FaultsPlacesTest)
#include "faults_places_test.moc"
