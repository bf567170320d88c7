// Which page is shown, which page button is disabled, and where the focus goes.

#include "windowfixture.h"

#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

/// "page 1, disabled ImageSetting, index 1"
QString stateOf(WindowFixture &fixture)
{
    QStringList disabled;
    for (const char *name : {"Inout", "ImageSetting", "PDFSetting", "Security"}) {
        if (!fixture.find<QPushButton>(QByteArray("pushButton_") + name)->isEnabled())
            disabled << QLatin1String(name);
    }
    return u"page %1, disabled %2, index %3"_s
        .arg(fixture.find<QStackedWidget>("stackedWidget_dialog")->currentIndex())
        .arg(disabled.isEmpty() ? u"none"_s : disabled.join(u" and "_s))
        .arg(ProcessProbe::pageIndex(fixture.window));
}

/// Calls `note` at each event of a type that comes to a widget.
class EventLog : public QObject
{
public:
    EventLog(QObject *target, QEvent::Type eventType, std::function<void()> noteFunction)
        : m_type(eventType)
        , m_note(std::move(noteFunction))
    {
        target->installEventFilter(this);
    }

    bool eventFilter(QObject * /*target*/, QEvent *event) override
    {
        if (event->type() == m_type)
            m_note();
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_note;
};

} // namespace

class NavigationTest : public QObject
{
    Q_OBJECT

private slots:
    void slotsLeadToTheirPages_data();
    void slotsLeadToTheirPages();
    void clicksLeadToTheirPages_data();
    void clicksLeadToTheirPages();
    void openedPageTakesTheKeyboard_data();
    void openedPageTakesTheKeyboard();
    void disabledButtonCannotBeClicked();
    void imageButtonStaysUncheckable();
    void pageIsShownBeforeItsButtonChanges_data();
    void pageIsShownBeforeItsButtonChanges();
};

void NavigationTest::slotsLeadToTheirPages_data()
{
    QTest::addColumn<QStringList>("path"); // slots in turn
    QTest::addColumn<QString>("state");

    const QString files = u"on_pushButton_Inout_clicked"_s;
    const QString image = u"on_pushButton_ImageSetting_clicked"_s;
    const QString description = u"on_pushButton_PDFSetting_clicked"_s;
    const QString security = u"on_pushButton_Security_clicked"_s;
    const QString left = u"on_pushButton_left_clicked"_s;
    const QString right = u"on_pushButton_right_clicked"_s;
    const QString enable = u"setpushenable"_s;

    QTest::newRow("start") << QStringList{} << "page 0, disabled Inout, index 0";
    QTest::newRow("image") << QStringList{image} << "page 1, disabled ImageSetting, index 1";
    QTest::newRow("description") << QStringList{description}
                                 << "page 2, disabled PDFSetting, index 2";
    QTest::newRow("security") << QStringList{security} << "page 3, disabled Security, index 3";
    QTest::newRow("files right at the start")
        << QStringList{files} << "page 0, disabled Inout, index 0";
    QTest::newRow("files leaves the index")
        << QStringList{security, files} << "page 0, disabled Inout, index 3";
    QTest::newRow("left does as files does")
        << QStringList{description, left} << "page 0, disabled Inout, index 2";
    QTest::newRow("the page already shown changes nothing")
        << QStringList{image, image} << "page 1, disabled ImageSetting, index 1";
    QTest::newRow("one option page after another")
        << QStringList{image, description, security} << "page 3, disabled Security, index 3";

    QTest::newRow("right at the start stays on the files")
        << QStringList{right} << "page 0, disabled Inout, index 0";
    QTest::newRow("right comes back to the image page")
        << QStringList{image, files, right} << "page 1, disabled ImageSetting, index 1";
    QTest::newRow("right comes back to the description page")
        << QStringList{description, left, right} << "page 2, disabled PDFSetting, index 2";
    QTest::newRow("right comes back to the security page")
        << QStringList{security, files, right} << "page 3, disabled Security, index 3";
    QTest::newRow("right comes back to the last of several pages")
        << QStringList{image, security, files, right} << "page 3, disabled Security, index 3";
    QTest::newRow("right on an option page stays there")
        << QStringList{image, right} << "page 1, disabled ImageSetting, index 1";

    QTest::newRow("all enabled by hand") << QStringList{enable} << "page 0, disabled none, index 0";
    QTest::newRow("all enabled on an option page")
        << QStringList{security, enable} << "page 3, disabled none, index 3";
    QTest::newRow("right at the start with all enabled disables none")
        << QStringList{enable, right} << "page 0, disabled none, index 0";
}

void NavigationTest::slotsLeadToTheirPages()
{
    QFETCH(QStringList, path);
    WindowFixture fixture;
    for (const QString &slot : path)
        QVERIFY(QMetaObject::invokeMethod(&fixture.window, slot.toLatin1().constData()));
    QTEST(stateOf(fixture), "state");
}

void NavigationTest::clicksLeadToTheirPages_data()
{
    QTest::addColumn<QList<QByteArray>>("path");
    QTest::addColumn<QString>("state");

    QTest::newRow("image") << QList<QByteArray>{"ImageSetting"}
                           << "page 1, disabled ImageSetting, index 1";
    QTest::newRow("description") << QList<QByteArray>{"PDFSetting"}
                                 << "page 2, disabled PDFSetting, index 2";
    QTest::newRow("security") << QList<QByteArray>{"Security"}
                              << "page 3, disabled Security, index 3";
    QTest::newRow("there and back to the files")
        << QList<QByteArray>{"Security", "Inout"} << "page 0, disabled Inout, index 3";
    QTest::newRow("through all pages")
        << QList<QByteArray>{"ImageSetting", "PDFSetting", "Security", "Inout", "PDFSetting"}
        << "page 2, disabled PDFSetting, index 2";
}

void NavigationTest::clicksLeadToTheirPages()
{
    QFETCH(QList<QByteArray>, path);
    WindowFixture fixture;
    for (const QByteArray &button : path) {
        QTest::mouseClick(fixture.find<QPushButton>("pushButton_" + button), Qt::LeftButton);
    }
    QTEST(stateOf(fixture), "state");
}

void NavigationTest::openedPageTakesTheKeyboard_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("control");
    QTest::newRow("image") << QByteArray("ImageSetting") << u"comboBox_rotate"_s;
    QTest::newRow("description") << QByteArray("PDFSetting") << u"lineEdit_title"_s;
    QTest::newRow("security") << QByteArray("Security") << u"lineEdit_ownerpwd"_s;
    QTest::newRow("files") << QByteArray("Inout") << u"openfileButton"_s;
}

void NavigationTest::openedPageTakesTheKeyboard()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, control);
    WindowFixture fixture;
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    fixture.press("pushButton_" + QByteArray(button == "Security" ? "PDFSetting" : "Security"));
    auto *opener = fixture.find<QPushButton>("pushButton_" + button);
    for (const bool byMouse : {true, false}) {
        if (byMouse) {
            QTest::mouseClick(opener, Qt::LeftButton);
        } else {
            fixture.window.setpushenable();
            opener->setFocus();
            QTest::keyClick(opener, Qt::Key_Space);
        }
        QVERIFY(fixture.window.focusWidget());
        QCOMPARE(fixture.window.focusWidget()->objectName(), control);
    }
}

void NavigationTest::disabledButtonCannotBeClicked()
{
    WindowFixture fixture;
    fixture.press("pushButton_ImageSetting");
    auto *button = fixture.find<QPushButton>("pushButton_ImageSetting");
    int clicks = 0;
    connect(button, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(clicks, 0);
    QCOMPARE(stateOf(fixture), u"page 1, disabled ImageSetting, index 1"_s);
}

void NavigationTest::imageButtonStaysUncheckable()
{
    WindowFixture fixture;
    fixture.press("pushButton_ImageSetting");
    auto *button = fixture.find<QPushButton>("pushButton_ImageSetting");
    QVERIFY(!button->isCheckable());
    QVERIFY(!button->isChecked());

    // It is set checked all the same, and it alone, as buttons that can be checked show.
    fixture.press("pushButton_Inout");
    const auto buttons = fixture.window.findChildren<QPushButton *>();
    for (QPushButton *each : buttons)
        each->setCheckable(true);
    for (const char *slot : {"on_pushButton_ImageSetting_clicked", "on_pushButton_Inout_clicked",
                             "on_pushButton_PDFSetting_clicked", "on_pushButton_Security_clicked"})
        QVERIFY(QMetaObject::invokeMethod(&fixture.window, slot));
    for (const QPushButton *each : buttons)
        QCOMPARE(each->isChecked(), each == button);
}

void NavigationTest::pageIsShownBeforeItsButtonChanges_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("page");
    QTest::newRow("image") << QByteArray("ImageSetting") << 1;
    QTest::newRow("description") << QByteArray("PDFSetting") << 2;
    QTest::newRow("security") << QByteArray("Security") << 3;
}

void NavigationTest::pageIsShownBeforeItsButtonChanges()
{
    QFETCH(QByteArray, button);
    QFETCH(int, page);
    WindowFixture fixture;
    auto *pushButton = fixture.find<QPushButton>("pushButton_" + button);
    auto *pages = fixture.find<QStackedWidget>("stackedWidget_dialog");
    QStringList changes;
    connect(pages, &QStackedWidget::currentChanged, this,
            [&changes](int index) { changes << QStringLiteral("page %1").arg(index); });
    pushButton->setCheckable(true); // or being checked would not show
    pushButton->setChecked(false);
    connect(pushButton, &QPushButton::toggled, this, [&changes] { changes << u"checked"_s; });
    EventLog disabling(pushButton, QEvent::EnabledChange, [&changes] { changes << u"disabled"_s; });

    const QByteArray slot = "on_pushButton_" + button + "_clicked";
    QVERIFY(QMetaObject::invokeMethod(&fixture.window, slot.constData()));
    QStringList expected{QStringLiteral("page %1").arg(page)};
    if (button == "ImageSetting")
        expected << u"checked"_s;
    QCOMPARE(changes, expected << u"disabled"_s);
}

QTEST_MAIN(NavigationTest)
#include "navigation_test.moc"
