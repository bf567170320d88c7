// Every tip as a user sees it: the mouse rests on a control of the real window, on a screen with a
// window manager, as only an active window shows tips.

#include "startup.h"
#include "windowdriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QProcess>
#include <QScreen>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int showTimeout = 20000; // ms

/// The tip that the screen shows; null when there is none.
QWidget *shownTip()
{
    const auto widgets = QApplication::topLevelWidgets();
    const auto tip = std::ranges::find_if(widgets, [](const QWidget *widget) {
        return widget->inherits("QTipLabel") && widget->isVisible() &&
               widget->windowHandle()->isExposed();
    });
    return tip == widgets.end() ? nullptr : *tip;
}

QImage onScreen(const QRect &place)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
        .toImage();
}

/// Dark letters on a light ground.
bool isReadable(const QImage &picture)
{
    QList<int> greys;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            greys << qGray(picture.pixel(x, y));
    }
    std::ranges::sort(greys);
    return !greys.isEmpty() && greys[greys.size() / 2] > 230 && greys.first() < 110;
}

/// A place to rest the mouse, and the tip that belongs there.
struct Spot
{
    QWidget *widget;
    QPoint place;
    QString text;
};

QList<Spot> spotsOf(QWidget *parent)
{
    QList<Spot> spots;
    const auto widgets = parent->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && !widget->toolTip().isEmpty())
            spots.append({widget, widget->rect().center(), widget->toolTip()});
    }
    return spots;
}

/// The parts of a table, which all show the table's tip.
QList<Spot> spotsOf(QTableWidget *table)
{
    const QString tip = table->toolTip();
    const QPoint row = table->visualItemRect(table->item(0, 0)).center();
    const QRect viewport = table->viewport()->rect();
    return {
        {table->viewport(), row, tip},
        {table->viewport(), {viewport.center().x(), viewport.bottom() - 5}, tip},
        {table->horizontalHeader(), table->horizontalHeader()->rect().center(), tip},
        {table->verticalHeader(), {5, 5}, tip},
        {table->findChild<QAbstractButton *>(), {5, 5}, tip},
    };
}

} // namespace

class ToolTipsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tipsOfEveryPageAreReadable_data();
    void tipsOfEveryPageAreReadable();
    void tipsOfTheFileListAreReadable();
    void tipsOfTheFileDialogAreReadable();
    void cleanupTestCase();

private:
    bool activate(QWidget &window);
    void look(const Spot &spot);
    void look(const QList<Spot> &spots);

    QProcess m_windowManager;
};

void ToolTipsTest::initTestCase()
{
    m_windowManager.start(QStringLiteral("openbox"), QStringList());
    QVERIFY2(m_windowManager.waitForStarted(), "openbox is not installed");
    const auto isAtWork = [] {
        return QProcess::execute(QStringLiteral("xdotool"), {QStringLiteral("get_desktop")}) == 0;
    };
    QVERIFY(QTest::qWaitFor(isAtWork, showTimeout));
}

void ToolTipsTest::cleanupTestCase()
{
    m_windowManager.kill();
    m_windowManager.waitForFinished();
}

bool ToolTipsTest::activate(QWidget &window)
{
    window.show();
    const auto isActive = [&window] {
        window.activateWindow();
        return window.isActiveWindow();
    };
    return QTest::qWaitFor(isActive, showTimeout);
}

void ToolTipsTest::look(const Spot &spot)
{
    const QString name = spot.widget->objectName() + QStringLiteral(": ") + spot.text;
    QCursor::setPos(0, 0); // coming to a place where it is would be no movement
    QToolTip::hideText();
    QVERIFY(QTest::qWaitFor([] { return !shownTip(); }, showTimeout));
    QCursor::setPos(spot.widget->mapToGlobal(spot.place));
    QVERIFY2(QTest::qWaitFor([] { return shownTip() != nullptr; }, showTimeout), qPrintable(name));
    QCOMPARE(qobject_cast<QLabel *>(shownTip())->text(), spot.text);
    const QImage picture = onScreen(shownTip()->geometry());
    const QString folder = qEnvironmentVariable("TESSARO_PICTURES"); // to look at them
    if (!folder.isEmpty())
        picture.save(folder + QLatin1Char('/') + spot.widget->objectName() +
                     QStringLiteral(".png"));
    QVERIFY2(isReadable(picture), qPrintable(name));
}

void ToolTipsTest::look(const QList<Spot> &spots)
{
    for (const Spot &spot : spots) {
        look(spot);
        if (QTest::currentTestFailed())
            return;
    }
}

void ToolTipsTest::tipsOfEveryPageAreReadable_data()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < 4; ++page)
        QTest::addRow("page %d", page) << page;
}

void ToolTipsTest::tipsOfEveryPageAreReadable()
{
    QFETCH(int, page);
    WindowDriver driver;
    QVERIFY(activate(driver.window));
    auto *pages = driver.find<QStackedWidget>("stackedWidget_dialog");
    pages->setCurrentIndex(page);
    // The buttons at the bottom are the same on all pages.
    const QList<Spot> spots = page == 0 ? spotsOf(&driver.window) : spotsOf(pages);
    QVERIFY(spots.size() >= 2);
    look(spots);
}

void ToolTipsTest::tipsOfTheFileListAreReadable()
{
    WindowDriver driver;
    QVERIFY(activate(driver.window));
    auto *table = driver.find<QTableWidget>("inputfiletableWidget");
    table->setRowCount(1);
    table->setItem(0, 0, new QTableWidgetItem(QStringLiteral("/home/me/a.png")));
    look(spotsOf(table));
}

void ToolTipsTest::tipsOfTheFileDialogAreReadable()
{
    WindowDriver driver;
    QVERIFY(activate(driver.window));
    QFileDialog dialog(&driver.window);
    QVERIFY(activate(dialog));
    const QList<Spot> spots = spotsOf(&dialog);
    QVERIFY(spots.size() >= 5);
    look(spots);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    ToolTipsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tooltips_test.moc"
