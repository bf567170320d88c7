// The window as its constructor leaves it, and what belongs to no page.

#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QStackedWidget>
#include <QTableWidget>

using namespace Qt::StringLiterals;

class WindowTest : public QObject
{
    Q_OBJECT

private slots:
    void windowStartsOnTheInputPageWithNothingChosen();
    void sizeIsFixed();
    void controlsBelowTheFrameAreUnderTheMouse_data();
    void controlsBelowTheFrameAreUnderTheMouse();
    void fileTableIsStyledAndSelectsWholeRows();
    void outputFolderFieldHasColoursMadeOfWhite();
    void windowShowsItsPicture();
    void textsOfTheStepsAreEmptyAndNotNull();
    void tabKeyVisitsThePageInOrder();
    void typedAngleIsTakenAsTyped_data();
    void typedAngleIsTakenAsTyped();
    void rotationMayBeTyped();
    void aboutButtonOpensTheAboutBox();
    void optionDialogOpensAndCloses();
    void emptySlotsDoNothing_data();
    void emptySlotsDoNothing();
    void emptyMembersAnswerAlike();
    void windowDestroysWhatItOwns();
};

void WindowTest::windowStartsOnTheInputPageWithNothingChosen()
{
    WindowFixture fixture;
    QCOMPARE(fixture.window.windowTitle(), u"Tessaro Image to PDF Converter"_s);
    QCOMPARE(fixture.find<QStackedWidget>("stackedWidget_dialog")->currentIndex(), 0);
    QCOMPARE(ProcessProbe::pageIndex(fixture.window), 0);
    QCOMPARE(ProcessProbe::fileIndex(fixture.window), 0);
    QCOMPARE(fixture.find<QTableWidget>("inputfiletableWidget")->rowCount(), 0);
    QCOMPARE(fixture.find<QProgressBar>("progressBar")->value(), 0);
    QCOMPARE(fixture.find<QLineEdit>("outputfolderEdit")->text(), QString());
    QVERIFY(!fixture.find<QPushButton>("pushButton_Inout")->isEnabled());
    QVERIFY(fixture.window.acceptDrops());
    QVERIFY(!ProcessProbe::previewTimer(fixture.window)->isActive());
    QCOMPARE(ProcessProbe::previewTimer(fixture.window)->parent(), &fixture.window);
}

void WindowTest::sizeIsFixed()
{
    WindowFixture fixture;
    QCOMPARE(fixture.window.size(), QSize(552, 484));
    fixture.window.resize(800, 600);
    QCOMPARE(fixture.window.size(), QSize(552, 484));
    QCOMPARE(fixture.window.minimumSize(), QSize(552, 484));
    QCOMPARE(fixture.window.maximumSize(), QSize(552, 484));
}

void WindowTest::controlsBelowTheFrameAreUnderTheMouse_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QRect>("place"); // in the frame

    QTest::newRow("output folder label")
        << QByteArray("outputfolderlabel") << QRect(10, 296, 101, 16);
    QTest::newRow("output folder field")
        << QByteArray("outputfolderEdit") << QRect(120, 292, 201, 20);
    QTest::newRow("output folder button") << QByteArray("outputButton") << QRect(320, 285, 41, 31);
    QTest::newRow("merge box") << QByteArray("checkBox_joinpdf") << QRect(117, 327, 241, 16);
    QTest::newRow("run button, moved to its final place")
        << QByteArray("runButton") << QRect(444, 280, 71, 72);
}

void WindowTest::controlsBelowTheFrameAreUnderTheMouse()
{
    QFETCH(QByteArray, name);
    QFETCH(QRect, place);
    WindowFixture fixture;
    auto *frame = fixture.find<QWidget>("frame_6");
    QCOMPARE(frame->geometry(), QRect(-10, 0, 571, 351));
    auto *control = fixture.find<QWidget>(name);
    QCOMPARE(control->geometry(), place);
    const QPoint centre = frame->mapTo(&fixture.window, place.center());
    QCOMPARE(fixture.window.childAt(centre), control);
}

void WindowTest::fileTableIsStyledAndSelectsWholeRows()
{
    WindowFixture fixture;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QCOMPARE(
        table->styleSheet(),
        QString(u"background-color:transparent;border:1px solid #6c6c6c;border-radius: 5px;"_s));
    const QString header = u"QHeaderView::section {background-color:GhostWhite;color: black;"
                           "padding-left: 1px;border: 0px solid #6c6c6c;}"_s;
    QCOMPARE(table->horizontalHeader()->styleSheet(), header);
    QCOMPARE(table->verticalHeader()->styleSheet(), header);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(table->isSortingEnabled());
    QVERIFY(table->horizontalHeader()->sortIndicatorSection() < 0);
}

void WindowTest::outputFolderFieldHasColoursMadeOfWhite()
{
    WindowFixture fixture;
    const QPalette colours = fixture.find<QWidget>("outputfolderEdit")->palette();
    const QPalette white(Qt::white);
    for (const auto role : {QPalette::Base, QPalette::Text, QPalette::Button, QPalette::Window})
        QCOMPARE(colours.color(role), white.color(role));
}

void WindowTest::windowShowsItsPicture()
{
    WindowFixture fixture;
    QVERIFY(fixture.window.autoFillBackground());
    const QImage picture = QImage(u":/iconoption/icons/stock-ved.jpg"_s)
                               .scaled(552, 484, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QBrush brush = fixture.window.palette().brush(group, QPalette::Window);
        QCOMPARE(brush.style(), Qt::TexturePattern);
        QCOMPARE(brush.textureImage().size(), picture.size());
        QCOMPARE(brush.textureImage().pixelColor(100, 10), picture.pixelColor(100, 10));
    }
}

void WindowTest::textsOfTheStepsAreEmptyAndNotNull()
{
    WindowFixture fixture;
    for (const QString &text :
         {ProcessProbe::lastPdftkIn(fixture.window), ProcessProbe::lastPdftkOut(fixture.window),
          ProcessProbe::pdftkIn(fixture.window), ProcessProbe::pdftkOut(fixture.window)}) {
        QVERIFY(text.isEmpty());
        QVERIFY(!text.isNull());
    }
    QVERIFY(ProcessProbe::tempFiles(fixture.window).isEmpty());
}

void WindowTest::tabKeyVisitsThePageInOrder()
{
    WindowFixture fixture;
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    fixture.find<QPushButton>("openfileButton")->setFocus();
    QStringList visited;
    do {
        visited << fixture.window.focusWidget()->objectName();
        QTest::keyClick(fixture.window.focusWidget(), Qt::Key_Tab);
    } while (visited.last() != QLatin1String("runButton") && visited.size() < 30);
    QCOMPARE(visited, QStringList({u"openfileButton"_s, u"removeButton"_s, u"removeallButton"_s,
                                   u"outputfolderEdit"_s, u"outputButton"_s, u"checkBox_joinpdf"_s,
                                   u"pushButton_ImageSetting"_s, u"pushButton_PDFSetting"_s,
                                   u"pushButton_Security"_s, u"runButton"_s}));
}

void WindowTest::typedAngleIsTakenAsTyped_data()
{
    QTest::addColumn<QString>("angle");
    for (const char *angle : {"9", "1", "18", "2", "27", "90", "-7", "89.5"}) // some begin an item
        QTest::newRow(angle) << QString::fromLatin1(angle);
}

void WindowTest::typedAngleIsTakenAsTyped()
{
    QFETCH(QString, angle);
    WindowFixture fixture;
    fixture.press("pushButton_ImageSetting");
    auto *box = fixture.find<QComboBox>("comboBox_rotate");
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), angle);
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(fixture.window.gettheoption(), u" -rotate "_s + angle);
}

void WindowTest::rotationMayBeTyped()
{
    WindowFixture fixture;
    fixture.press("pushButton_ImageSetting");
    auto *box = fixture.find<QComboBox>("comboBox_rotate");
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), u"45"_s);
    QCOMPARE(box->currentText(), u"45"_s);
    // The tool's option follows the index, which typing alone leaves at the first item.
    QCOMPARE(fixture.window.gettheoption(), QString());
    QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    QCOMPARE(fixture.window.gettheoption(), u" -rotate 45"_s);
    // With another item chosen what is typed counts at once.
    box->lineEdit()->selectAll();
    QTest::keyClicks(box->lineEdit(), u"7"_s);
    QVERIFY(box->currentIndex() > 0);
    QCOMPARE(fixture.window.gettheoption(), u" -rotate 7"_s);
}

void WindowTest::aboutButtonOpensTheAboutBox()
{
    WindowFixture fixture;
    for (int opening = 0; opening < 2; ++opening) {
        QWidget *shown = nullptr;
        QPoint middle;
        ModalAnswer answer([&](QWidget *box) {
            shown = box;
            middle = box->geometry().center();
        });
        fixture.window.move(30 + 20 * opening, 40);
        QTest::mouseClick(fixture.find<QPushButton>("aboutpushButton"), Qt::LeftButton);
        QVERIFY(answer.happened());
        constexpr int titleBar = 40; // of either window, at most
        QVERIFY((middle - fixture.window.geometry().center()).manhattanLength() <= titleBar);
        QCOMPARE(shown, &ProcessProbe::aboutBox(fixture.window));
        QVERIFY(!shown->isVisible());
    }
}

void WindowTest::optionDialogOpensAndCloses()
{
    WindowFixture fixture;
    QWidget *shown = nullptr;
    ModalAnswer answer([&shown](QWidget *box) {
        shown = box;
        QTest::keyClick(box, Qt::Key_Escape);
    });
    fixture.window.enteroption();
    QVERIFY(answer.happened());
    QCOMPARE(shown, &ProcessProbe::optionDialog(fixture.window));
    QVERIFY(!shown->isVisible());
}

void WindowTest::emptySlotsDoNothing_data()
{
    QTest::addColumn<QByteArray>("slot");
    for (const char *slot :
         {"runClicked", "readOutput", "on_openfileButton_clicked", "checkxdpi", "checkydpi"})
        QTest::newRow(slot) << QByteArray(slot);
}

void WindowTest::emptySlotsDoNothing()
{
    QFETCH(QByteArray, slot);
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    fixture.setOutputFolder();
    QCoreApplication::processEvents();
    const QImage before = fixture.window.grab().toImage();
    QVERIFY(QMetaObject::invokeMethod(&fixture.window, slot));
    QVERIFY(QMetaObject::invokeMethod(&fixture.window, "imageupdate", Q_ARG(QString, u"x"_s)));
    QCOMPARE(fixture.window.grab().toImage(), before);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(fixture.calls().isEmpty());
}

void WindowTest::emptyMembersAnswerAlike()
{
    WindowFixture fixture;
    QVERIFY(fixture.window.loadfile());
    QCOMPARE(fixture.window.getInisetting(), QString());
}

void WindowTest::windowDestroysWhatItOwns()
{
    auto window = std::make_unique<Process>(nullptr);
    const QPointer<QTimer> timer = ProcessProbe::previewTimer(*window);
    const QPointer<QProcess> process = ProcessProbe::process(*window);
    window.reset();
    QVERIFY(timer.isNull());
    QVERIFY(!process.isNull()); // the window leaves it alive
    delete process;
}

QTEST_MAIN(WindowTest)
#include "window_test.moc"
