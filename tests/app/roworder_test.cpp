// The order of the list's rows: moved by keys, dragged and sorted.

#include "filelistrows.h"

#include <QHeaderView>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

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
    void lineShowsWhereTheRowsWouldGo();
    void otherRowsAreSweptOver();
    void stepOfARunTakesTheRowAtItsIndex();
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

void RowOrderTest::lineShowsWhereTheRowsWouldGo()
{
    struct Opened : FileTable
    {
        using FileTable::dragLeaveEvent, FileTable::dragMoveEvent;
    };
    WindowFixture fixture;
    fixture.addImages({u"a"_s, u"b"_s, u"c"_s});
    FileTable &list = listOf(fixture);
    const auto lineAt = [&list] {
        const QImage shown = list.viewport()->grab().toImage();
        const QRgb colour = list.palette().color(QPalette::Highlight).rgb();
        int y = 0;
        while (y < shown.height() && shown.pixel(shown.width() - 9, y) != colour)
            ++y;
        return y;
    };
    const int none = lineAt();
    const QMimeData rows;
    const int height = list.rowHeight(0);
    // Above the middle of a row, and below it.
    for (const auto &[y, line] :
         {std::pair(1, 0), std::pair(height - 1, height - 2), std::pair(height + 1, height - 2),
          std::pair(3 * height - 1, 3 * height - 2)}) {
        QDragMoveEvent move({5, y}, Qt::MoveAction, &rows, Qt::LeftButton, Qt::NoModifier);
        (list.*(&Opened::dragMoveEvent))(&move);
        QCOMPARE(lineAt(), line);
    }
    QDragLeaveEvent leave;
    (list.*(&Opened::dragLeaveEvent))(&leave);
    QCOMPARE(lineAt(), none);
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
    // From a selected row they are dragged: nothing is swept. Qt 6.5 and later begin with
    // the first move, and sweep after a drag that this platform ends at once.
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(2));
    QTest::mouseMove(list.viewport(), middle(0));
    QCOMPARE(namesOf(fixture), u"a B C d"_s);
}

void RowOrderTest::stepOfARunTakesTheRowAtItsIndex()
{
    WindowFixture fixture;
    fixture.setOutputFolder();
    fixture.scriptConvert(fixture.holdTool());
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

QTEST_MAIN(RowOrderTest)
#include "roworder_test.moc"
