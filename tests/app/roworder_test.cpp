// The order of the list's rows: moved by keys, dragged, sorted, and 10,000 changes at random beside
// a plain list that is changed alike.

#include "filetable.h"
#include "windowfixture.h"

#include <QAction>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

FileTable &listOf(WindowFixture &fixture)
{
    return *dynamic_cast<FileTable *>(fixture.find<QTableWidget>("inputfiletableWidget"));
}

/// The list's file names with a blank between them, the selected ones in capitals.
QString namesOf(WindowFixture &fixture)
{
    const FileTable &list = listOf(fixture);
    QStringList names;
    for (int row = 0; row < list.rowCount(); ++row) {
        const QString name = list.item(row, 0)->text().section(u'/', -1);
        names << (list.item(row, 0)->isSelected() ? name.toUpper() : name);
    }
    return names.join(u' ');
}

void selectRows(FileTable &list, const QList<int> &rows)
{
    list.clearSelection();
    for (const int row : rows)
        list.selectionModel()->setCurrentIndex(
            list.model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

/// Drops the selected rows before row `place`: below the middle of the row above, or above the
/// middle of the row itself.
void dropRows(FileTable &list, int place, bool belowTheRowAbove)
{
    struct Opened : FileTable
    {
        using FileTable::dropEvent;
    };
    const int row = belowTheRowAbove ? place - 1 : place;
    list.scrollTo(list.model()->index(row, 0));
    const int y = list.rowViewportPosition(row) + (belowTheRowAbove ? list.rowHeight(row) - 1 : 0);
    const QMimeData rows;
    QDropEvent event(QPointF(5, y), Qt::MoveAction, &rows, Qt::LeftButton, Qt::NoModifier);
    (list.*(&Opened::dropEvent))(&event);
}

void sortBy(WindowFixture &fixture, const QString &actionText)
{
    const auto actions = listOf(fixture).actions();
    const auto action = std::ranges::find(actions, actionText, &QAction::text);
    if (action == actions.end())
        qFatal("no such action");
    (*action)->trigger();
}

void clickHeader(FileTable &list, int column)
{
    QHeaderView *header = list.horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

const QString byName = u"Sort by Name, 2 before 10"_s;
const QString asAdded = u"Sort as Added"_s;

} // namespace

class RowOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void keysMoveTheSelectedRows_data();
    void keysMoveTheSelectedRows();
    void sizesMoveWithTheirFiles();
    void currentRowStaysWithItsFile();
    void selectionIsExtendedFromTheMovedRow();
    void moveIsHeardOfOnce_data();
    void moveIsHeardOfOnce();
    void moveEndsTheHeadersSorting_data();
    void moveEndsTheHeadersSorting();
    void sortingAsAddedUndoesAllElse();
    void rowsAreSortedByNameWithNumbersByTheirValue();
    void filesFromElsewhereGoToTheEnd();
    void selectedRowsAreDragged();
    void otherRowsAreSweptOver();
    void stepOfARunTakesTheRowAtItsIndex();
    void noRowIsEverLost();
};

void RowOrderTest::keysMoveTheSelectedRows_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("names");

    QTest::newRow("one up") << QList<int>{2} << Qt::Key_Up << u"a C b d"_s;
    QTest::newRow("one down") << QList<int>{1} << Qt::Key_Down << u"a c B d"_s;
    QTest::newRow("two to the top") << QList<int>{1, 3} << Qt::Key_Home << u"B D a c"_s;
    QTest::newRow("two to the bottom") << QList<int>{0, 2} << Qt::Key_End << u"b d A C"_s;
    QTest::newRow("two, one at the edge") << QList<int>{0, 2} << Qt::Key_Up << u"A b C d"_s;
    QTest::newRow("none") << QList<int>{} << Qt::Key_Up << u"a b c d"_s;
}

void RowOrderTest::keysMoveTheSelectedRows()
{
    QFETCH(QList<int>, selected);
    QFETCH(Qt::Key, key);
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    FileTable &list = listOf(fixture);
    selectRows(list, selected);
    fixture.activate();
    list.setFocus();
    QTest::keyClick(&list, key, Qt::AltModifier);
    QTEST(namesOf(fixture), "names");
}

void RowOrderTest::sizesMoveWithTheirFiles()
{
    WindowFixture fixture;
    fixture.drop({QUrl::fromLocalFile(fixture.makeFile(u"none"_s, "")),
                  QUrl::fromLocalFile(fixture.makeFile(u"one"_s, "1")),
                  QUrl::fromLocalFile(fixture.makeFile(u"two"_s, "22"))});
    selectRows(listOf(fixture), {0});
    listOf(fixture).order().move(RowMove::Down);
    QCOMPARE(fixture.rows(),
             QStringList({u"one|         0.001KB"_s, u"none"_s, u"two|         0.002KB"_s}));
}

void RowOrderTest::currentRowStaysWithItsFile()
{
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s});
    FileTable &list = listOf(fixture);
    selectRows(list, {2});
    list.order().move(RowMove::ToTop);
    QCOMPARE(list.currentRow(), 0);
    // Also where it is not among those that move.
    list.selectionModel()->select(list.model()->index(0, 0),
                                  QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    list.selectionModel()->select(list.model()->index(2, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
    list.order().move(RowMove::ToTop);
    QCOMPARE(namesOf(fixture), u"B c a"_s);
    QCOMPARE(list.currentRow(), 1);
}

void RowOrderTest::selectionIsExtendedFromTheMovedRow()
{
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    FileTable &list = listOf(fixture);
    list.setCurrentCell(0, 0);
    fixture.activate();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(namesOf(fixture), u"b A C d"_s);
}

void RowOrderTest::moveIsHeardOfOnce_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<RowMove>("move");
    QTest::addColumn<int>("times");
    QTest::newRow("one row") << QList<int>{1} << RowMove::Up << 1;
    QTest::newRow("several rows") << QList<int>{1, 3} << RowMove::Up << 1;
    QTest::newRow("a row that cannot move") << QList<int>{0} << RowMove::Up << 0;
    QTest::newRow("no row") << QList<int>{} << RowMove::Up << 0;
}

void RowOrderTest::moveIsHeardOfOnce()
{
    QFETCH(QList<int>, selected);
    QFETCH(RowMove, move);
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    FileTable &list = listOf(fixture);
    selectRows(list, selected);
    int times = 0;
    connect(&list, &QTableWidget::itemSelectionChanged, this, [&times] { ++times; });
    list.order().move(move);
    QTEST(times, "times");
}

void RowOrderTest::moveEndsTheHeadersSorting_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("by name") << 0;
    QTest::newRow("by size") << 1;
}

void RowOrderTest::moveEndsTheHeadersSorting()
{
    QFETCH(int, column);
    WindowFixture fixture;
    fixture.addImages({u"b"_s, u"c"_s, u"a"_s});
    FileTable &list = listOf(fixture);
    clickHeader(list, column);
    QString names = namesOf(fixture);
    selectRows(list, {2});
    list.order().move(RowMove::ToTop);
    names = names.last(1).toUpper() + u' ' + names.first(3);
    QCOMPARE(namesOf(fixture), names);
    QCOMPARE(list.horizontalHeader()->sortIndicatorSection(), -1);
    fixture.addImages({u"0"_s}); // to the end, where it stays
    QCOMPARE(namesOf(fixture), names + u" 0"_s);
    clickHeader(list, column);
    QCOMPARE(list.horizontalHeader()->sortIndicatorSection(), column);
}

void RowOrderTest::sortingAsAddedUndoesAllElse()
{
    WindowFixture fixture;
    fixture.addImages({u"c"_s, u"a"_s, u"d"_s});
    FileTable &list = listOf(fixture);
    clickHeader(list, 0);
    fixture.addImages({u"b"_s}); // into the middle
    selectRows(list, {3});
    list.order().move(RowMove::ToTop);
    clickHeader(list, 0);
    sortBy(fixture, asAdded);
    QCOMPARE(namesOf(fixture).toLower(), u"c a d b"_s);
    selectRows(list, {1});
    fixture.press("removeButton");
    fixture.addImages({u"a"_s});
    sortBy(fixture, byName);
    QCOMPARE(namesOf(fixture).toLower(), u"a b c d"_s);
    sortBy(fixture, asAdded);
    QCOMPARE(namesOf(fixture).toLower(), u"c d b a"_s);
}

void RowOrderTest::rowsAreSortedByNameWithNumbersByTheirValue()
{
    WindowFixture fixture;
    fixture.addImages({u"scan10"_s, u"scan2"_s, u"scan1"_s});
    selectRows(listOf(fixture), {0});
    sortBy(fixture, byName);
    QCOMPARE(namesOf(fixture), u"scan1 scan2 SCAN10"_s);
}

void RowOrderTest::filesFromElsewhereGoToTheEnd()
{
    WindowFixture fixture;
    fixture.addImages({u"b"_s, u"a"_s});
    QWidget *viewport = listOf(fixture).viewport();
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(fixture.makeFile(u"0"_s))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &drop);
    QCOMPARE(namesOf(fixture), u"b a 0"_s);
}

void RowOrderTest::selectedRowsAreDragged()
{
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    FileTable &list = listOf(fixture);
    for (const auto &[place, below, names] :
         {std::tuple(0, false, u"B D a c"_s), std::tuple(4, true, u"a c B D"_s),
          std::tuple(2, true, u"a c B D"_s), std::tuple(1, false, u"a B D c"_s)}) {
        dropRows(list, place, below);
        if (list.currentRow() < 0) { // the first time
            QCOMPARE(namesOf(fixture), u"a b c d"_s);
            selectRows(list, {1, 3});
            dropRows(list, place, below);
        }
        QCOMPARE(namesOf(fixture), names);
    }
}

void RowOrderTest::otherRowsAreSweptOver()
{
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    FileTable &list = listOf(fixture);
    const auto middle = [&list](int row) {
        return list.visualItemRect(list.item(row, 0)).center();
    };
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(1));
    QTest::mouseMove(list.viewport(), middle(2));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middle(2));
    QCOMPARE(namesOf(fixture), u"a B C d"_s);
    // From a selected row they are dragged, which this platform cannot show: nothing is swept.
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(2));
    QTest::mouseMove(list.viewport(), middle(0));
    QTest::mouseMove(list.viewport(), middle(3));
    QCOMPARE(namesOf(fixture), u"a B C d"_s);
}

void RowOrderTest::stepOfARunTakesTheRowAtItsIndex()
{
    WindowFixture fixture;
    fixture.setOutputFolder();
    fixture.tellConvert(fixture.holdTool());
    fixture.addImages({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    fixture.press("runButton");
    selectRows(listOf(fixture), {2});
    listOf(fixture).order().move(RowMove::Up);
    fixture.openGate();
    QVERIFY(fixture.waitUntilQuiet());
    QStringList images;
    const auto calls = fixture.calls();
    for (const ToolCall &call : calls)
        images << call.arguments.first().section(u'/', -1);
    QCOMPARE(images, QStringList({u"a.jpg"_s, u"c.jpg"_s, u"b.jpg"_s}));
}

namespace {

/// A list of files as simple as can be, changed as the window's is.
struct PlainList
{
    struct Row
    {
        QString name; // "FOLDER/pNUMBER"
        int added;
        bool selected = false;

        QString folder() const { return name.section(u'/', 0, 0); }
        int number() const { return name.section(u'p', 1).toInt(); }
    };

    QList<Row> rows;

    void moveTo(int place)
    {
        QList<Row> before, selected, behind;
        for (int row = 0; row < rows.size(); ++row) {
            if (rows[row].selected)
                selected << rows[row];
            else
                (row < place ? before : behind) << rows[row];
        }
        rows = before + selected + behind;
    }

    void moveByOne(int step)
    {
        const auto edge = step < 0 ? 0 : rows.size() - 1;
        if (rows.isEmpty() || rows[edge].selected)
            return;
        QList<Row> result = rows;
        for (auto row = edge; row >= 0 && row < rows.size(); row -= step) {
            if (rows[row].selected)
                result.swapItemsAt(row, row + step);
        }
        rows = result;
    }

    template <class Less>
    void sort(Less less)
    {
        std::stable_sort(rows.begin(), rows.end(), less);
    }
};

} // namespace

void RowOrderTest::noRowIsEverLost()
{
    WindowFixture fixture;
    FileTable &list = listOf(fixture);
    fixture.activate();
    list.setFocus();
    PlainList plain;
    int files = 0;
    std::mt19937 random(20261121);
    const auto below = [&random](qsizetype limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };

    const std::function<void()> changes[] = {
        [&] { // add
            QList<QUrl> urls;
            for (int file = below(6); file >= 0 && plain.rows.size() < 60; --file) {
                const QString name =
                    u"%1/p%2"_s.arg(QChar(u'x' + below(3))).arg(below(900) * 100 + files % 100);
                plain.rows.append({name, files++});
                urls << QUrl::fromLocalFile(u"/n/"_s + name);
            }
            list.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
            fixture.drop(urls);
        },
        [&] { // select
            QList<int> selected;
            for (int row = 0; row < plain.rows.size(); ++row) {
                plain.rows[row].selected = below(4) == 0;
                if (plain.rows[row].selected)
                    selected << row;
            }
            selectRows(list, selected);
        },
        [&] { QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier), plain.moveByOne(-1); },
        [&] { QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier), plain.moveByOne(1); },
        [&] { QTest::keyClick(&list, Qt::Key_Home, Qt::AltModifier), plain.moveTo(0); },
        [&] {
            QTest::keyClick(&list, Qt::Key_End, Qt::AltModifier);
            plain.moveTo(static_cast<int>(plain.rows.size()));
        },
        [&] { // drag
            if (plain.rows.isEmpty())
                return;
            const int place = below(plain.rows.size() + 1);
            dropRows(list, place, place == plain.rows.size() || (place > 0 && below(2) == 0));
            plain.moveTo(place);
        },
        [&] {
            sortBy(fixture, byName);
            plain.sort([](const auto &a, const auto &b) {
                return std::pair(a.folder(), a.number()) < std::pair(b.folder(), b.number());
            });
        },
        [&] {
            sortBy(fixture, asAdded);
            plain.sort([](const auto &a, const auto &b) { return a.added < b.added; });
        },
        [&] { // by the header
            clickHeader(list, 0);
            const bool isUp = list.horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder;
            plain.sort([isUp](const auto &a, const auto &b) {
                return isUp ? a.name < b.name : b.name < a.name;
            });
        },
        [&] { // remove, now and then all
            const bool all = below(20) == 0;
            fixture.press(all ? "removeallButton" : "removeButton");
            plain.rows.removeIf([all](const auto &row) { return all || row.selected; });
            list.clearSelection(); // what is selected after a removal is not this test's affair
            for (auto &row : plain.rows)
                row.selected = false;
        },
    };

    for (int change = 0; change < 10000; ++change) {
        const int kind = below(static_cast<int>(std::size(changes)));
        changes[kind]();
        QStringList expected, actual;
        for (const auto &row : std::as_const(plain.rows))
            expected << row.name + (row.selected ? u"*"_s : QString());
        for (int row = 0; row < list.rowCount(); ++row)
            actual << list.item(row, 0)->text().mid(3) +
                          (list.item(row, 0)->isSelected() ? u"*"_s : QString());
        if (actual != expected)
            qWarning("change %d of kind %d", change, kind);
        QCOMPARE(actual, expected);
    }
    QVERIFY(files > 1000);
}

QTEST_MAIN(RowOrderTest)
#include "roworder_test.moc"
