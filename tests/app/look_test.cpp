// The window's own light colours under a dark desktop theme, at one and two device pixels.

#include "startup.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTableWidget>
#include <QToolTip>

#include <algorithm>

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

/// Dark text on light ground.
bool isReadable(QWidget *widget)
{
    const Tones tones = tonesOf(widget);
    return tones.middle > 200 && tones.darkest < 110;
}

} // namespace

class LookTest : public QObject
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
    void toolTipIsDarkOnLight();
    void dialogsAreDarkOnLight();
    void everyColourRoleIsTheWindowsOwn();
    void currentPageButtonHasItsOwnPicture();
    void focusedFlatButtonShowsARing();
};

void LookTest::desktopIsDark()
{
    // What main() found before it prepared the application.
    QVERIFY(qApp->property("desktopWindow").value<QColor>().lightness() < 80);
}

void LookTest::everyTextOnEveryPageIsDarkOnLight_data()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < 4; ++page)
        QTest::addRow("page %d", page) << page;
}

void LookTest::everyTextOnEveryPageIsDarkOnLight()
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

void LookTest::rowsAndHeaderAreDarkOnLight()
{
    WindowFixture fixture;
    fixture.addImages({"a.jpg", "b.jpg", "c.jpg"});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    for (int row = 0; row < 3; ++row) {
        const Tones tones = tonesOf(table->viewport(), table->visualItemRect(table->item(row, 1)));
        QVERIFY(tones.middle > 200);
        QVERIFY(tones.darkest < 110);
    }
    QVERIFY(isReadable(table->horizontalHeader()));
    QVERIFY(isReadable(table->verticalHeader()));
}

void LookTest::selectedRowStandsOut()
{
    WindowFixture fixture;
    fixture.addImages({"a.jpg"});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectRow(0);
    const Tones tones = tonesOf(table->viewport(), table->visualItemRect(table->item(0, 1)));
    QVERIFY(tones.middle < 140);
    QVERIFY(tones.lightest > 240);
}

void LookTest::typedTextIsDarkOnLight()
{
    WindowFixture fixture;
    fixture.type("outputfolderEdit", "/home/me/results");
    QVERIFY(isReadable(fixture.find<QLineEdit>("outputfolderEdit")));
}

void LookTest::messageBoxIsDarkOnLight()
{
    WindowFixture fixture;
    bool readable = false;
    ModalAnswer answer([&readable](QWidget *box) {
        readable = isReadable(box->findChild<QLabel *>("qt_msgbox_label"));
    });
    fixture.click("runButton");
    QVERIFY(answer.happened());
    QVERIFY(readable);
}

void LookTest::toolTipIsDarkOnLight()
{
    WindowFixture fixture;
    QToolTip::showText(fixture.window.mapToGlobal(QPoint(50, 50)), "What this is for",
                       &fixture.window);
    QLabel *tip = nullptr;
    const auto findTip = [&tip] {
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            if (widget->inherits("QTipLabel"))
                tip = qobject_cast<QLabel *>(widget);
        }
        return tip != nullptr;
    };
    QVERIFY(QTest::qWaitFor(findTip));
    const Tones tones = tonesOf(tip->grab().toImage());
    QVERIFY(tones.middle > 200);
    QVERIFY(tones.darkest < 110);
    QToolTip::hideText();
}

void LookTest::dialogsAreDarkOnLight()
{
    WindowFixture fixture;
    for (QDialog *dialog : {static_cast<QDialog *>(&ProcessProbe::aboutBox(fixture.window)),
                            static_cast<QDialog *>(&ProcessProbe::optionDialog(fixture.window))}) {
        const Tones tones = tonesOf(dialog->grab().toImage());
        QVERIFY(tones.middle > 200);
        QVERIFY(tones.darkest < 110);
    }
}

void LookTest::everyColourRoleIsTheWindowsOwn()
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

void LookTest::currentPageButtonHasItsOwnPicture()
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

void LookTest::focusedFlatButtonShowsARing()
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
    const QStringList plugins = QCoreApplication::libraryPaths();
    prepare(application);
    QCoreApplication::setLibraryPaths(plugins); // the test's bundle has no plug-ins of its own
    LookTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "look_test.moc"
