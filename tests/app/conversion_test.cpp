// The steps of a conversion: the order of the tools, and the files that remain.

#include "windowfixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QTableWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// "convert a.jpg a.pdf": the call without the folders, to be read at a glance.
QStringList shortCalls(const WindowFixture &fixture)
{
    QStringList result;
    const auto calls = fixture.calls();
    for (const ToolCall &call : calls) {
        QString line = call.tool + QLatin1Char(' ') + call.arguments.join(QLatin1Char(' '));
        line.replace(fixture.inputPath({}), QString());
        line.replace(fixture.outputPath() + QLatin1Char('/'), QString());
        line.replace(QDir::currentPath() + QLatin1Char('/'), QString());
        result << line;
    }
    return result;
}

/// Sees each child process as soon as Qt reports an event of it.
class ProcessesMet : public QObject
{
public:
    ProcessesMet() { qApp->installEventFilter(this); }

    qsizetype seen() const { return m_processes.size(); }
    qsizetype alive() const
    {
        return std::count_if(m_processes.begin(), m_processes.end(),
                             [](const auto &process) { return !process.isNull(); });
    }

    bool eventFilter(QObject *target, QEvent * /*event*/) override
    {
        QPointer<QProcess> process = qobject_cast<QProcess *>(target);
        if (process && !m_processes.contains(process))
            m_processes << process;
        return false;
    }

private:
    QList<QPointer<QProcess>> m_processes;
};

} // namespace

class ConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void eachRunStartsTheStepsOfItsMode_data();
    void eachRunStartsTheStepsOfItsMode();
    void progressCountsStartedImages();
    void mergedRunLeavesTheFileIndexAtItsRowCount();
    void laterRunsDeleteTheLastFinishedPdfAgain();
    void mergedRunWithOptionsClearsTheFinishedNames();
    void intermediateNamesAreSetOnlyWhenPdftkFollows();
    void optionsAreReadAgainWhenPdftkStarts();
    void intermediateFileStaysInTheFolderThatConvertWasGiven();
    void toolsRunInTheCurrentFolder();
    void rowsAddedMidRunAreConvertedToo();
    void namesThatAgreeOverwriteEachOther();
    void failedToolsDoNotStopTheRun();
    void toolThatCannotBeStartedStopsTheRunThere();
    void childProcessesBelongToNobody();
};

void ConversionTest::eachRunStartsTheStepsOfItsMode_data()
{
    QTest::addColumn<bool>("merged");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("printing");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QStringList>("files");

    QTest::newRow("one by one without options: convert after convert")
        << false << "" << false << QStringList{u"convert a.jpg a.pdf"_s, u"convert b.png b.pdf"_s}
        << QStringList{u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.png)"_s};
    QTest::newRow("one by one with a title: pdftk after each convert")
        << false << "T" << false
        << QStringList{u"convert a.jpg a.pdf"_s,
                       u"pdftk a.pdf update_info pdfa.txt output a-1.pdf"_s,
                       u"convert b.png b.pdf"_s,
                       u"pdftk b.pdf update_info pdfa.txt output b-1.pdf"_s}
        << QStringList{u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s};
    QTest::newRow("one by one with a permission alone: pdftk after each convert")
        << false << "" << true
        << QStringList{u"convert a.jpg a.pdf"_s, u"pdftk a.pdf output a-1.pdf allow printing"_s,
                       u"convert b.png b.pdf"_s, u"pdftk b.pdf output b-1.pdf allow printing"_s}
        << QStringList{u"a.pdf: pdftk(convert(a.jpg))"_s, u"b.pdf: pdftk(convert(b.png))"_s};
    QTest::newRow("merged without options: one convert, nothing follows")
        << true << "" << false << QStringList{u"convert a.jpg b.png a.pdf"_s}
        << QStringList{u"a.pdf: convert(a.jpg|b.png)"_s};
    QTest::newRow("merged with options: one convert, one pdftk, the files swapped")
        << true << "T" << true
        << QStringList{u"convert a.jpg b.png a.pdf"_s,
                       u"pdftk a.pdf update_info pdfa.txt output a-1.pdf allow printing"_s}
        << QStringList{u"a.pdf: pdftk(convert(a.jpg|b.png))"_s};
}

void ConversionTest::eachRunStartsTheStepsOfItsMode()
{
    QFETCH(bool, merged);
    QFETCH(QString, title);
    QFETCH(bool, printing);
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.png"_s});
    fixture.setOutputFolder();
    fixture.check("checkBox_joinpdf", merged);
    fixture.check("checkBox_allowprint", printing);
    fixture.fill("lineEdit_title", title);

    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());

    QTEST(shortCalls(fixture), "calls");
    QTEST(fixture.outputFiles(), "files");
}

void ConversionTest::progressCountsStartedImages()
{
    WindowFixture fixture;
    auto *bar = fixture.find<QProgressBar>("progressBar");
    QCOMPARE(bar->value(), 0);
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    fixture.setOutputFolder();
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    QCOMPARE(bar->value(), 1);
    QCOMPARE(bar->maximum(), 3);

    QList<int> seen;
    connect(bar, &QProgressBar::valueChanged, this, [&seen](int value) { seen << value; });
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(seen, QList<int>({2, 3, 0}));
    QCOMPARE(bar->maximum(), 3);
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 0);
}

void ConversionTest::mergedRunLeavesTheFileIndexAtItsRowCount()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.setOutputFolder();
    fixture.check("checkBox_joinpdf");
    fixture.press("runButton");
    QCOMPARE(ProcessProbe::tempFiles(fixture.window),
             QStringList({fixture.inputPath(u"a.jpg"_s), fixture.inputPath(u"b.jpg"_s)}));
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 2);
    QCOMPARE(fixture.find<QProgressBar>("progressBar")->value(), 0);

    fixture.check("checkBox_joinpdf", false);
    fixture.press("runButton"); // only ends the run
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(ProcessProbe::tempFiles(fixture.window).isEmpty());
    QCOMPARE(fixture.calls().size(), 1);
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 0);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.calls().size(), 3);
}

void ConversionTest::laterRunsDeleteTheLastFinishedPdfAgain()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    fixture.fill("lineEdit_title", u"T"_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(), QStringList({u"a.pdf: pdftk(convert(a.jpg))"_s}));
    QCOMPARE(ProcessProbe::lastPdftkIn(fixture.window), fixture.outputPath(u"a.pdf"_s));
    QCOMPARE(ProcessProbe::lastPdftkOut(fixture.window), fixture.outputPath(u"a-1.pdf"_s));

    fixture.fill("lineEdit_title", u""_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.calls().size(), 3); // a.pdf was written again, and deleted at the run's end
    QCOMPARE(fixture.outputFiles(), QStringList());
}

void ConversionTest::mergedRunWithOptionsClearsTheFinishedNames()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.setOutputFolder();
    fixture.fill("lineEdit_title", u"T"_s);
    fixture.check("checkBox_joinpdf");
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(ProcessProbe::lastPdftkIn(fixture.window), QString());
    QCOMPARE(ProcessProbe::lastPdftkOut(fixture.window), QString());
    QCOMPARE(ProcessProbe::tempFiles(fixture.window), QStringList());
}

void ConversionTest::intermediateNamesAreSetOnlyWhenPdftkFollows()
{
    WindowFixture fixture;
    fixture.addImages({u"a.1.jpg"_s});
    fixture.setOutputFolder();
    fixture.press("runButton");
    QCOMPARE(ProcessProbe::pdftkIn(fixture.window), QString());
    QCOMPARE(ProcessProbe::pdftkOut(fixture.window), QString());
    QVERIFY(fixture.waitUntilQuiet());
    fixture.check("checkBox_allowcopy");
    fixture.press("runButton");
    QCOMPARE(ProcessProbe::pdftkIn(fixture.window),
             QLatin1Char('"') + fixture.outputPath(u"a.pdf"_s) + QLatin1Char('"'));
    QCOMPARE(ProcessProbe::pdftkOut(fixture.window), fixture.outputPath(u"a-1.pdf"_s));
    QVERIFY(fixture.waitUntilQuiet());
}

void ConversionTest::optionsAreReadAgainWhenPdftkStarts()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    fixture.fill("lineEdit_title", u"T"_s);
    fixture.check("checkBox_allowprint");
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    fixture.fill("lineEdit_title", u""_s);
    fixture.fill("lineEdit_ownerpwd", u"late"_s);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(shortCalls(fixture),
             QStringList({u"convert a.jpg a.pdf"_s,
                          u"pdftk a.pdf output a-1.pdf owner_pw late allow printing"_s}));
}

void ConversionTest::intermediateFileStaysInTheFolderThatConvertWasGiven()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    fixture.check("checkBox_allowprint");
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    fixture.fill("outputfolderEdit", QDir::tempPath());
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(shortCalls(fixture).last(), u"pdftk a.pdf output a-1.pdf allow printing"_s);
    QCOMPARE(fixture.outputFiles(), QStringList({u"a.pdf: pdftk(convert(a.jpg))"_s}));
}

void ConversionTest::toolsRunInTheCurrentFolder()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    const QString folder = QDir::current().relativeFilePath(fixture.outputPath());
    fixture.fill("outputfolderEdit", folder);
    fixture.check("checkBox_allowprint");
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.calls().first().arguments.last(), folder + u"/a.pdf"_s);
    QCOMPARE(fixture.outputFiles(), QStringList({u"a.pdf: pdftk(convert(a.jpg))"_s}));
}

void ConversionTest::rowsAddedMidRunAreConvertedToo()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    fixture.scriptConvert(fixture.holdTool());
    fixture.press("runButton");
    fixture.addImages({u"b.jpg"_s});
    QList<int> seen; // a bar takes no value above its maximum
    connect(fixture.find<QProgressBar>("progressBar"), &QProgressBar::valueChanged, this,
            [&seen](int value) { seen << value; });
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(),
             QStringList({u"a.pdf: convert(a.jpg)"_s, u"b.pdf: convert(b.jpg)"_s}));
    QCOMPARE(seen, QList<int>({2, 0}));
}

void ConversionTest::namesThatAgreeOverwriteEachOther()
{
    WindowFixture fixture;
    fixture.addImages({u"a.1.jpg"_s, u"a.2.jpg"_s, u"scan.jpg"_s, u"scan.png"_s});
    fixture.setOutputFolder();
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(),
             QStringList({u"a.pdf: convert(a.2.jpg)"_s, u"scan.pdf: convert(scan.png)"_s}));
}

void ConversionTest::failedToolsDoNotStopTheRun()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.setOutputFolder();
    fixture.scriptConvert(u"output=none exit=1"_s);
    fixture.fill("lineEdit_title", u"T"_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.calls().size(), 4);
    QCOMPARE(fixture.outputFiles(), QStringList());
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 0);
}

void ConversionTest::toolThatCannotBeStartedStopsTheRunThere()
{
    const QString tool = QCoreApplication::applicationDirPath() + u"/convert"_s;
    const QString aside = tool + u".aside"_s;
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s});
    fixture.setOutputFolder();
    QVERIFY(QFile::rename(tool, aside));
    fixture.press("runButton");
    const bool quiet = fixture.waitUntilQuiet();
    QVERIFY(QFile::rename(aside, tool));
    QVERIFY(quiet);
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 1);
    QCOMPARE(fixture.find<QProgressBar>("progressBar")->value(), 1);

    fixture.press("runButton"); // goes on with the row after
    QVERIFY(fixture.waitUntilQuiet());
    QCOMPARE(fixture.outputFiles(), QStringList({u"b.pdf: convert(b.jpg)"_s}));
}

void ConversionTest::childProcessesBelongToNobody()
{
    ProcessesMet met;
    WindowFixture fixture;
    QVERIFY(!ProcessProbe::process(fixture.window)->parent());
    QCOMPARE(ProcessProbe::process(fixture.window)->processChannelMode(),
             QProcess::SeparateChannels);
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    fixture.fill("lineEdit_title", u"T"_s);
    fixture.press("runButton");
    QVERIFY(fixture.waitUntilQuiet());
    QVERIFY(fixture.window.findChildren<QProcess *>().isEmpty());
    QCOMPARE(ProcessProbe::process(fixture.window)->state(), QProcess::NotRunning);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(met.seen(), 2);
    QCOMPARE(met.alive(), 2); // and so they stay until the program ends
}

QTEST_MAIN(ConversionTest)
#include "conversion_test.moc"
