// The window's own light colours and its lines under a dark desktop theme, at several scales.

#include "startup.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>
#include <QStackedWidget>
#include <QTableWidget>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// How light a part of the screen is: its darkest, middle and lightest pixel, 0 to 255.
struct Tones
{
    int darkest;
    int middle;
    int lightest;
};

Tones tonesOf(const QImage &image)
{
    QList<int> grays;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            grays << qGray(image.pixel(x, y));
    }
    std::sort(grays.begin(), grays.end());
    return {grays.first(), grays[grays.size() / 2], grays.last()};
}

/// What the window shows at `place` of `widget`.
Tones tonesOf(QWidget *widget, QRect place)
{
    place.moveTopLeft(widget->mapTo(widget->window(), place.topLeft()));
    return tonesOf(widget->window()->grab(place).toImage());
}

Tones tonesOf(QWidget *widget)
{
    return tonesOf(widget, widget->rect());
}

/// The tip that resting the mouse on the middle of `widget` shows; null when none does.
QLabel *tipOf(QWidget *widget)
{
    const auto shown = [] {
        const auto widgets = QApplication::topLevelWidgets();
        const auto tip = std::ranges::find_if(widgets, [](const QWidget *candidate) {
            return candidate->inherits("QTipLabel") && candidate->isVisible();
        });
        return tip == widgets.end() ? nullptr : qobject_cast<QLabel *>(*tip);
    };
    delete shown(); // that of the widget before, which would take its time to go
    const QPoint middle = widget->rect().center();
    QHelpEvent rest(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QApplication::sendEvent(widget, &rest);
    return shown();
}

/// A window without its own background is black on the screen.
QImage onBlack(QWidget &widget)
{
    QImage picture(widget.size() * widget.devicePixelRatioF(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(widget.devicePixelRatioF());
    picture.fill(Qt::black);
    widget.render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

QList<QWidget *> visibleWidgets(QWidget &window)
{
    auto widgets = window.findChildren<QWidget *>();
    erase_if(widgets,
             [](const QWidget *widget) { return !widget->isVisible() || widget->isWindow(); });
    return widgets;
}

void askForMenu(QWidget &widget)
{
    const QPoint middle = widget.rect().center();
    QContextMenuEvent ask(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &ask);
}

/// What `work` pops up, which may wait for it to be closed; null when it pops up nothing.
QImage popupOf(const std::function<void()> &work)
{
    QImage picture;
    const auto look = [&picture] {
        while (QWidget *popup = QApplication::activePopupWidget()) {
            picture = onBlack(*popup);
            popup->close();
        }
    };
    QTimer::singleShot(0, qApp, look);
    work();
    look();
    QCoreApplication::processEvents(); // the timer has fired before the next popup
    return picture;
}

/// Dark text on light ground.
bool isReadable(QWidget *widget)
{
    const Tones tones = tonesOf(widget);
    return tones.middle > 200 && tones.darkest < 110;
}

} // namespace

class StyleTest : public QObject
{
    Q_OBJECT

private slots:
    void desktopIsDark();
    void everyTextOnEveryPageIsDarkOnLight_data();
    void everyTextOnEveryPageIsDarkOnLight();
    void rowsAndHeaderAreDarkOnLight();
    void selectedRowStandsOut();
    void typedTextIsDarkOnLight();
    void messageBoxIsDarkOnLight();
    void everyTipIsDarkOnLight();
    void everyPopupIsDarkOnLight();
    void dialogsAreDarkOnLight();
    void everyColourRoleIsTheWindowsOwn();
    void styleIsTheWindowsOwn();
    void everyKindOfWidgetHasTheUsersFont();
    void currentPageButtonHasItsOwnPicture();
    void focusedFlatButtonShowsARing();
};

void StyleTest::desktopIsDark()
{
    // What main() found before it prepared the application.
    QVERIFY(qApp->property("desktopWindow").value<QColor>().lightness() < 80);
}

void StyleTest::everyTextOnEveryPageIsDarkOnLight_data()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < 4; ++page)
        QTest::addRow("page %d", page) << page;
}

void StyleTest::everyTextOnEveryPageIsDarkOnLight()
{
    QFETCH(int, page);
    WindowFixture fixture;
    auto *pages = fixture.find<QStackedWidget>("stackedWidget_dialog");
    pages->setCurrentIndex(page);
    const auto labels = pages->currentWidget()->findChildren<QWidget *>();
    int seen = 0;
    for (QWidget *widget : labels) {
        const bool hasText = !widget->property("text").toString().isEmpty();
        if (!hasText || !widget->isVisible() || qobject_cast<QLineEdit *>(widget))
            continue;
        QVERIFY2(isReadable(widget), qPrintable(widget->objectName()));
        ++seen;
    }
    QVERIFY(seen >= 4);
}

void StyleTest::rowsAndHeaderAreDarkOnLight()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    for (int row = 0; row < 3; ++row) {
        const Tones tones = tonesOf(table->viewport(), table->visualItemRect(table->item(row, 1)));
        QVERIFY(tones.middle > 200);
        QVERIFY(tones.darkest < 110);
    }
    QVERIFY(isReadable(table->horizontalHeader()));
    QVERIFY(isReadable(table->verticalHeader()));
}

void StyleTest::selectedRowStandsOut()
{
    WindowFixture fixture;
    fixture.addImages({u"a.jpg"_s});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectRow(0);
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    table->setFocus();
    const Tones tones = tonesOf(table->viewport(), table->visualItemRect(table->item(0, 1)));
    QVERIFY(tones.middle < 140);
    QVERIFY(tones.lightest > 240);
}

void StyleTest::typedTextIsDarkOnLight()
{
    WindowFixture fixture;
    fixture.fill("outputfolderEdit", u"/home/me/results"_s);
    QVERIFY(isReadable(fixture.find<QLineEdit>("outputfolderEdit")));
}

void StyleTest::messageBoxIsDarkOnLight()
{
    WindowFixture fixture;
    bool readable = false;
    ModalAnswer answer([&readable](QWidget *box) {
        readable = isReadable(box->findChild<QLabel *>(u"qt_msgbox_label"_s));
    });
    fixture.press("runButton");
    QVERIFY(answer.happened());
    QVERIFY(readable);
}

void StyleTest::everyTipIsDarkOnLight()
{
    WindowFixture fixture;
    auto *pages = fixture.find<QStackedWidget>("stackedWidget_dialog");
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QStringList tips;
    for (int page = 0; page < 4; ++page) {
        pages->setCurrentIndex(page);
        auto widgets = visibleWidgets(fixture.window);
        // The parts of the table have no tip of their own and show the table's.
        erase_if(widgets, [table](const QWidget *widget) {
            return widget->toolTip().isEmpty() && !table->isAncestorOf(widget);
        });
        for (QWidget *widget : widgets) {
            QLabel *tip = tipOf(widget);
            QVERIFY2(tip, qPrintable(widget->objectName()));
            const Tones tones = tonesOf(onBlack(*tip));
            QVERIFY2(tones.middle > 200 && tones.darkest < 110, qPrintable(tip->text()));
            tips << tip->text();
        }
    }
    QVERIFY(tips.count(table->toolTip()) >= 4);
    tips.removeDuplicates();
    QVERIFY2(tips.size() >= 22, qPrintable(tips.join(QLatin1Char('\n'))));
}

void StyleTest::everyPopupIsDarkOnLight()
{
    WindowFixture fixture;
    fixture.addImages(QStringList(20, u"a.jpg"_s)); // enough for a scroll bar
    auto *pages = fixture.find<QStackedWidget>("stackedWidget_dialog");
    QStringList seen;
    for (int page = 0; page < 4; ++page) {
        pages->setCurrentIndex(page);
        QTest::qWait(0);
        const auto widgets = visibleWidgets(fixture.window);
        for (QWidget *widget : widgets) {
            const QImage menu = popupOf([widget] { askForMenu(*widget); });
            const QImage items = popupOf([widget] {
                if (auto *box = qobject_cast<QComboBox *>(widget))
                    box->showPopup();
            });
            for (const QImage &popup : {menu, items}) {
                if (popup.isNull())
                    continue;
                const Tones tones = tonesOf(popup);
                // The menu of an empty field has nothing but grey entries.
                QVERIFY2(tones.middle > 200 && tones.darkest < 150,
                         widget->metaObject()->className());
                seen << QString::fromLatin1(widget->metaObject()->className());
            }
        }
    }
    QCOMPARE(seen.count(u"QScrollBar"_s), 1);
    QVERIFY(seen.count(u"QLineEdit"_s) >= 7);
    QVERIFY(seen.count(u"QComboBox"_s) >= 3);
}

void StyleTest::dialogsAreDarkOnLight()
{
    WindowFixture fixture;
    for (QDialog *dialog : {static_cast<QDialog *>(&ProcessProbe::aboutBox(fixture.window)),
                            static_cast<QDialog *>(&ProcessProbe::optionDialog(fixture.window))}) {
        const Tones tones = tonesOf(dialog->grab().toImage());
        QVERIFY(tones.middle > 200);
        QVERIFY(tones.darkest < 110);
    }
}

void StyleTest::everyColourRoleIsTheWindowsOwn()
{
    const QPalette colours = QApplication::palette();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role == QPalette::NoRole)
            continue;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QVERIFY2(colours.isBrushSet(group, static_cast<QPalette::ColorRole>(role)),
                     qPrintable(QString::number(role)));
    }
}

void StyleTest::styleIsTheWindowsOwn()
{
    // What main() found before it prepared the application, and what stands now.
    QCOMPARE(qApp->property("desktopStyle").toString(), u"windows"_s);
    auto *style = qobject_cast<QProxyStyle *>(QApplication::style());
    QVERIFY(style);
    QCOMPARE(style->baseStyle()->name(), u"fusion"_s);
}

void StyleTest::everyKindOfWidgetHasTheUsersFont()
{
    QCOMPARE(qApp->property("desktopButtonFont").value<QFont>().pointSize(), 30);
    WindowFixture fixture;
    const auto widgets = fixture.window.findChildren<QWidget *>();
    QVERIFY(!widgets.isEmpty());
    for (const QWidget *widget : widgets)
        QVERIFY2(widget->font().pointSizeF() <= QApplication::font().pointSizeF(),
                 qPrintable(widget->objectName()));
}

void StyleTest::currentPageButtonHasItsOwnPicture()
{
    WindowFixture fixture;
    for (const char *name : {"pushButton_Inout", "pushButton_ImageSetting", "pushButton_PDFSetting",
                             "pushButton_Security"}) {
        const QIcon icon = fixture.find<QPushButton>(name)->icon();
        const QImage current = icon.pixmap({70, 75}, QIcon::Disabled).toImage();
        // Qt would grey the picture; the drawn one is coloured.
        int coloured = 0;
        for (int x = 0; x < current.width(); ++x)
            coloured += QColor(current.pixel(x, current.height() / 2)).saturation() > 20;
        QVERIFY2(coloured > 5, name);
        QVERIFY(current != icon.pixmap({70, 75}, QIcon::Normal).toImage());
    }
}

void StyleTest::focusedFlatButtonShowsARing()
{
    WindowFixture fixture;
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    for (const char *name : {"openfileButton", "removeButton", "removeallButton", "outputButton",
                             "runButton", "pushButton_Security", "aboutpushButton"}) {
        auto *button = fixture.find<QPushButton>(name);
        button->setFocus();
        const QImage focused = button->grab().toImage();
        fixture.find<QLineEdit>("outputfolderEdit")->setFocus();
        QVERIFY2(focused != button->grab().toImage(), name);
    }
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    application.setProperty("desktopWindow", QApplication::palette().color(QPalette::Window));
    application.setProperty("desktopStyle", QApplication::style()->name());
    application.setProperty("desktopButtonFont", QApplication::font("QPushButton"));
    const QStringList plugins = QCoreApplication::libraryPaths();
    setUpApplication(application);
    QCoreApplication::setLibraryPaths(plugins); // the test's bundle has no plug-ins of its own
    StyleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "style_test.moc"
