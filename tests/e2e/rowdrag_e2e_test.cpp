// Rows of the list dragged by a real mouse.

#include "startup.h"
#include "windowdriver.h"
#include "xdotool.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// Moves the mouse over a list, from a timer, as a drag runs its own event loop.
class Dragger : public QObject
{
public:
    explicit Dragger(QTableWidget &list)
        : m_list(list)
    {
        list.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_pressed |= event->type() == QEvent::MouseButtonPress;
        if (event->type() == QEvent::DragMove) {
            m_dragged = true;
            m_place = static_cast<QDragMoveEvent *>(event)->position().toPoint();
        } else if (event->type() == QEvent::DragLeave)
            m_place.reset();
        return false;
    }

    /// Where the list last saw the dragged rows; nothing once they have left it.
    std::optional<QPoint> place() const { return m_place; }

    /// Presses on row `row`, moves to `target` in the viewport until `arrived`, and ends the drag
    /// by `end`. Says whether all of it came about.
    bool drag(int row, QPoint target, const std::function<bool()> &arrived,
              const std::function<void()> &end)
    {
        const QPoint start = m_list.visualItemRect(m_list.item(row, 0)).center();
        move(start);
        xdotool({u"mousedown"_s, u"1"_s});
        if (!QTest::qWaitFor([this] { return m_pressed; }, stepTimeout))
            return false;
        bool ended = false;
        QTimer timer;
        int step = 0;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            const QPoint jitter(++step % 2, 0); // what does not move is not seen
            if (!m_dragged) {
                move(start + QPoint(20, 0) + jitter);
                return;
            }
            if (!arrived()) {
                // Once it is there it rests: a list that sees movements does not scroll.
                if (!m_place || (*m_place - target).manhattanLength() > 1)
                    move(target + jitter);
                return;
            }
            timer.stop();
            end();
            ended = true;
        });
        timer.start(20);
        const auto isOver = [&] { return ended && !m_list.findChild<QDrag *>(); };
        const bool result = QTest::qWaitFor(isOver, stepTimeout);
        xdotool({u"mouseup"_s, u"1"_s});
        return result;
    }

private:
    void move(QPoint place)
    {
        const QPoint onScreen = m_list.viewport()->mapToGlobal(place);
        xdotool({u"mousemove"_s, QString::number(onScreen.x()), QString::number(onScreen.y())});
    }

    QTableWidget &m_list;
    bool m_pressed = false;
    bool m_dragged = false;
    std::optional<QPoint> m_place;
};

void release()
{
    xdotool({u"mouseup"_s, u"1"_s});
}

} // namespace

class RowDragE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_driver.reset(); }
    void selectedRowsGoWhereTheLineIs_data();
    void selectedRowsGoWhereTheLineIs();
    void listScrollsAtItsEdge();
    void escapeCancels();
    void rowsDraggedOutOfTheWindowStay();

private:
    void list(int files);
    QString names() const;
    QTableWidget &table() const { return *m_driver->find<QTableWidget>("inputfiletableWidget"); }
    /// The place in the viewport at the upper edge of row `row`.
    QPoint above(int row) const { return {60, table().rowViewportPosition(row)}; }

    std::unique_ptr<WindowDriver> m_driver;
};

void RowDragE2eTest::init()
{
    m_driver = std::make_unique<WindowDriver>();
    QVERIFY(m_driver->show());
}

void RowDragE2eTest::list(int files)
{
    QList<QUrl> urls;
    for (int file = 0; file < files; ++file)
        urls << QUrl::fromLocalFile(u"/n/%1"_s.arg(file));
    m_driver->drop(urls);
}

QString RowDragE2eTest::names() const
{
    QStringList names;
    for (int row = 0; row < table().rowCount(); ++row)
        names << table().item(row, 0)->text().section(u'/', -1);
    return names.join(u' ');
}

void RowDragE2eTest::selectedRowsGoWhereTheLineIs_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("result");
    QTest::newRow("one up") << QList<int>{3} << 1 << u"0 3 1 2 4 5"_s;
    QTest::newRow("one down") << QList<int>{1} << 4 << u"0 2 3 1 4 5"_s;
    QTest::newRow("several together") << QList<int>{1, 4} << 3 << u"0 2 1 4 3 5"_s;
    QTest::newRow("to the top") << QList<int>{2} << 0 << u"2 0 1 3 4 5"_s;
}

void RowDragE2eTest::selectedRowsGoWhereTheLineIs()
{
    QFETCH(QList<int>, selected);
    QFETCH(int, place);
    list(6);
    for (const int row : selected)
        table().selectionModel()->select(table().model()->index(row, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    Dragger dragger(table());
    const QPoint target = above(place) + QPoint(0, 1);
    const auto isThere = [&] { return dragger.place() && dragger.place()->y() == target.y(); };
    QImage picture;
    const auto lookAndRelease = [&] {
        picture = table().viewport()->grab().toImage();
        release();
    };
    QVERIFY(dragger.drag(selected.last(), target, isThere, lookAndRelease));
    const QPoint onLine = above(place) + QPoint(150, 0);
    QCOMPARE(picture.pixelColor(onLine), table().palette().highlight().color());
    QTEST(names(), "result");
}

void RowDragE2eTest::listScrollsAtItsEdge()
{
    list(40);
    table().selectRow(2);
    Dragger dragger(table());
    const QScrollBar &bar = *table().verticalScrollBar();
    const QPoint edge(60, table().viewport()->height() - 1);
    QVERIFY(dragger.drag(
        2, edge, [&bar] { return bar.value() == bar.maximum(); }, release));
    QVERIFY(names().endsWith(u" 39 2"_s));
}

void RowDragE2eTest::escapeCancels()
{
    list(6);
    table().selectRow(1);
    Dragger dragger(table());
    QVERIFY(dragger.drag(
        1, above(4), [&] { return dragger.place().has_value(); }, [] { press(u"Escape"_s); }));
    QCOMPARE(names(), u"0 1 2 3 4 5"_s);
    QVERIFY(!dragger.place());
}

void RowDragE2eTest::rowsDraggedOutOfTheWindowStay()
{
    list(6);
    table().selectRow(1);
    Dragger dragger(table());
    QVERIFY(dragger.drag(
        1, {900, 20}, [&] { return !dragger.place(); }, release));
    QCOMPARE(names(), u"0 1 2 3 4 5"_s);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    RowDragE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "rowdrag_e2e_test.moc"
