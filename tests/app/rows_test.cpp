// Rows of the list: removal, sorting, opening, and the signals of a selection.

#include "windowfixture.h"

#include <QDesktopServices>
#include <QFrame>
#include <QHeaderView>
#include <QProperty>
#include <QRegularExpression>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

/// Opens a protected member for reading: how many connections an object's signal has.
struct Receivers : QObject
{
    static int of(const QObject *sender, const char *signal)
    {
        return (sender->*(&Receivers::receivers))(signal);
    }
};

/// How often the preview is notified of a selection change.
int selectionConnections(WindowFixture &fixture)
{
    return Receivers::of(fixture.find<QTableWidget>("inputfiletableWidget"),
                         SIGNAL(itemSelectionChanged()));
}

/// The names of the list's rows, without their sizes.
QStringList namesOf(WindowFixture &fixture)
{
    QStringList names = fixture.rows();
    for (QString &name : names)
        name = name.section(QLatin1Char('|'), 0, 0);
    return names;
}

QImage pictureOf(const QFrame &frame)
{
    return frame.palette().brush(frame.backgroundRole()).textureImage();
}

void selectRows(WindowFixture &fixture, const QList<int> &rows)
{
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->clearSelection();
    for (const int row : rows)
        table->selectionModel()->select(table->model()->index(row, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

/// A step of the user's, by its name.
void act(WindowFixture &fixture, const QString &step)
{
    if (step == QLatin1String("add"))
        fixture.addImages({u"a.jpg"_s});
    else if (step == QLatin1String("select"))
        selectRows(fixture, {0});
    else if (step == QLatin1String("remove"))
        fixture.press("removeButton");
    else if (step == QLatin1String("remove all"))
        fixture.press("removeallButton");
    else if (step == QLatin1String("cancelled open")) {
        const ModalAnswer cancel([](QWidget *) {});
        fixture.press("openfileButton");
    } else
        qFatal("no such step");
}

void clickHeader(QTableWidget *table, int column)
{
    QHeaderView *header = table->horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QPoint placeOfRow(QTableWidget *table, int row)
{
    return table->visualItemRect(table->item(row, 0)).center();
}

} // namespace

class RowsTest : public QObject
{
    Q_OBJECT

public slots:
    void takeUrl(const QUrl &url) { urls << url; }

private slots:
    void init() { urls.clear(); }
    void selectedRowsAreRemovedFromTheBottomUp();
    void cellsOfARowCountOnce();
    void emptiedListShowsTheDefaultPreview_data();
    void emptiedListShowsTheDefaultPreview();
    void selectionConnectionsComeAndGo_data();
    void selectionConnectionsComeAndGo();
    void removingTheLastRowAsksForNoPreview_data();
    void removingTheLastRowAsksForNoPreview();
    void clickStillAsksForAPreviewWithoutAConnection();
    void rowsStayAsAddedUntilAHeaderIsClicked();
    void sizesStayWithTheirFilesWhenSorted_data();
    void sizesStayWithTheirFilesWhenSorted();
    void addedRowsShowInEveryList_data();
    void addedRowsShowInEveryList();
    void doubleClickOpensTheFile();
    void openingWithoutACurrentFileDoesNothing_data();
    void openingWithoutACurrentFileDoesNothing();

private:
    QList<QUrl> urls;
};

void RowsTest::selectedRowsAreRemovedFromTheBottomUp()
{
    WindowFixture fixture;
    fixture.addImages({u"0.jpg"_s, u"1.jpg"_s, u"2.jpg"_s, u"3.jpg"_s, u"4.jpg"_s});
    selectRows(fixture, {1, 3});
    QList<int> removed;
    connect(fixture.find<QTableWidget>("inputfiletableWidget")->model(),
            &QAbstractItemModel::rowsRemoved, this,
            [&removed](const QModelIndex &, int first) { removed << first; });
    fixture.press("removeButton");
    QCOMPARE(removed, QList<int>({3, 1}));
    QCOMPARE(namesOf(fixture), QStringList({u"0.jpg"_s, u"2.jpg"_s, u"4.jpg"_s}));
}

void RowsTest::cellsOfARowCountOnce()
{
    WindowFixture fixture;
    fixture.addImages({u"0.jpg"_s, u"1.jpg"_s});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->setSelectionBehavior(QAbstractItemView::SelectItems);
    table->item(0, 0)->setSelected(true);
    table->item(0, 1)->setSelected(true);
    fixture.press("removeButton");
    QCOMPARE(namesOf(fixture), QStringList({u"1.jpg"_s}));
}

void RowsTest::emptiedListShowsTheDefaultPreview_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<bool>("shown");
    QTest::newRow("the last row removed")
        << QStringList{u"add"_s, u"select"_s, u"remove"_s} << true;
    QTest::newRow("all rows removed") << QStringList{u"add"_s, u"add"_s, u"remove all"_s} << true;
    QTest::newRow("removing from an empty list") << QStringList{u"remove"_s} << true;
    QTest::newRow("removing all of an empty list") << QStringList{u"remove all"_s} << false;
    QTest::newRow("nothing selected") << QStringList{u"add"_s, u"remove"_s} << false;
    QTest::newRow("a row is left")
        << QStringList{u"add"_s, u"add"_s, u"select"_s, u"remove"_s} << false;
}

void RowsTest::emptiedListShowsTheDefaultPreview()
{
    QFETCH(QStringList, steps);
    WindowFixture fixture;
    auto *frame = fixture.find<QFrame>("previewframe");
    QCOMPARE(frame->size(), QSize(151, 151));
    const QImage defaultPicture = pictureOf(*frame);
    QVERIFY(!defaultPicture.isNull());
    frame->resize(9, 9);
    frame->setPalette(QPalette(Qt::red));
    for (const QString &step : steps)
        act(fixture, step);
    QTEST(frame->size() == QSize(151, 151), "shown");
    QTEST(pictureOf(*frame) == defaultPicture, "shown");
}

void RowsTest::selectionConnectionsComeAndGo_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("connections");

    QTest::newRow("the constructor makes one") << QStringList{} << 1;
    QTest::newRow("a drop makes none") << QStringList{u"add"_s} << 1;
    QTest::newRow("a cancelled dialog makes one more") << QStringList{u"cancelled open"_s} << 2;
    QTest::newRow("each removal makes one more")
        << QStringList{u"add"_s, u"remove"_s, u"remove"_s} << 3;
    QTest::newRow("removing the last row breaks all of them")
        << QStringList{u"add"_s, u"cancelled open"_s, u"remove"_s, u"select"_s, u"remove"_s} << 0;
    QTest::newRow("removing from the emptied list makes one")
        << QStringList{u"add"_s, u"select"_s, u"remove"_s, u"remove"_s} << 1;
    QTest::newRow("the dialog after that makes one more")
        << QStringList{u"add"_s, u"select"_s, u"remove"_s, u"cancelled open"_s} << 1;
    QTest::newRow("removing all leaves one")
        << QStringList{u"add"_s, u"remove"_s, u"cancelled open"_s, u"remove all"_s} << 1;
    QTest::newRow("removing all makes one after none were left")
        << QStringList{u"add"_s, u"select"_s, u"remove"_s, u"add"_s, u"remove all"_s} << 1;
    QTest::newRow("removing all of an empty list changes nothing")
        << QStringList{u"cancelled open"_s, u"remove all"_s} << 2;
}

void RowsTest::selectionConnectionsComeAndGo()
{
    QFETCH(QStringList, steps);
    QFETCH(int, connections);
    WindowFixture fixture;
    for (const QString &step : steps)
        act(fixture, step);
    QCOMPARE(selectionConnections(fixture), connections);

    // One selection change restarts the preview's delay once for each.
    int starts = 0;
    QTimer *timer = ProcessProbe::previewTimer(fixture.window);
    const auto count = timer->bindableActive().addNotifier([&] { starts += timer->isActive(); });
    emit fixture.find<QTableWidget>("inputfiletableWidget")->itemSelectionChanged();
    QCOMPARE(starts, connections);
}

void RowsTest::removingTheLastRowAsksForNoPreview_data()
{
    QTest::addColumn<QString>("step");
    QTest::newRow("the selected row") << u"remove"_s;
    QTest::newRow("all rows") << u"remove all"_s;
}

void RowsTest::removingTheLastRowAsksForNoPreview()
{
    QFETCH(QString, step);
    WindowFixture fixture;
    act(fixture, u"add"_s);
    act(fixture, u"select"_s);
    QTimer *timer = ProcessProbe::previewTimer(fixture.window);
    QVERIFY(timer->isActive());
    timer->stop();
    act(fixture, step); // takes the selection away too
    QVERIFY(!timer->isActive());
}

void RowsTest::clickStillAsksForAPreviewWithoutAConnection()
{
    WindowFixture fixture;
    for (const char *step : {"add", "select", "remove", "add"})
        act(fixture, QLatin1String(step));
    QTimer *timer = ProcessProbe::previewTimer(fixture.window);
    timer->stop();
    selectRows(fixture, {0});
    QVERIFY(!timer->isActive());
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, placeOfRow(table, 0));
    QVERIFY(timer->isActive());
}

void RowsTest::rowsStayAsAddedUntilAHeaderIsClicked()
{
    WindowFixture fixture;
    fixture.addImages({u"c.jpg"_s, u"a.jpg"_s});
    fixture.addImages({u"b.jpg"_s});
    QCOMPARE(namesOf(fixture), QStringList({u"c.jpg"_s, u"a.jpg"_s, u"b.jpg"_s}));
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    clickHeader(table, 0);
    QCOMPARE(table->horizontalHeader()->sortIndicatorSection(), 0);
    QVERIFY(namesOf(fixture) != QStringList({u"c.jpg"_s, u"a.jpg"_s, u"b.jpg"_s}));
}

void RowsTest::sizesStayWithTheirFilesWhenSorted_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QStringList>("rows");

    const QStringList byName{u"a.jpg 0.003KB"_s, u"b.jpg 0.001KB"_s, u"c.jpg 0.004KB"_s,
                             u"d.jpg 0.002KB"_s};
    const QStringList bySize{u"b.jpg 0.001KB"_s, u"d.jpg 0.002KB"_s, u"a.jpg 0.003KB"_s,
                             u"c.jpg 0.004KB"_s};
    QTest::newRow("by name") << 0 << Qt::AscendingOrder << byName;
    QTest::newRow("by name, downwards")
        << 0 << Qt::DescendingOrder << QStringList(byName.rbegin(), byName.rend());
    QTest::newRow("by size") << 1 << Qt::AscendingOrder << bySize;
    QTest::newRow("by size, downwards")
        << 1 << Qt::DescendingOrder << QStringList(bySize.rbegin(), bySize.rend());
}

void RowsTest::sizesStayWithTheirFilesWhenSorted()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    WindowFixture fixture;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    do {
        clickHeader(table, column);
    } while (table->horizontalHeader()->sortIndicatorOrder() != order);

    QList<QUrl> files;
    for (const auto &[name, size] :
         {std::pair(u"d.jpg"_s, 2), std::pair(u"a.jpg"_s, 3), std::pair(u"c.jpg"_s, 4)})
        files << QUrl::fromLocalFile(fixture.makeFile(name, QByteArray(size, 'x')));
    fixture.drop(files);
    fixture.drop({QUrl::fromLocalFile(fixture.makeFile(u"b.jpg"_s, "x"))});
    QTEST(fixture.rows().replaceInStrings(QRegularExpression(u"\\| *"_s), u" "_s), "rows");
    QVERIFY(table->isSortingEnabled());
}

void RowsTest::addedRowsShowInEveryList_data()
{
    QTest::addColumn<int>("sortedBy");
    QTest::newRow("as added") << -1;
    QTest::newRow("sorted by name") << 0;
    QTest::newRow("sorted by size") << 1;
}

void RowsTest::addedRowsShowInEveryList()
{
    QFETCH(int, sortedBy);
    WindowFixture fixture;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->horizontalHeader()->setSortIndicator(sortedBy, Qt::AscendingOrder);
    QVERIFY(QTest::qWaitForWindowExposed(&fixture.window));
    QCoreApplication::processEvents(); // a layout that is still due would find the rows by itself
    fixture.addImages({u"b.jpg"_s, u"a.jpg"_s});
    fixture.addImages({u"c.jpg"_s});
    QCOMPARE(table->verticalHeader()->count(), 3);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(table->visualItemRect(table->item(row, 0)).height(), 17); // and a line
    const QPoint last = placeOfRow(table, 2);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, last);
    QCOMPARE(table->currentRow(), 2);
}

void RowsTest::doubleClickOpensTheFile()
{
    WindowFixture fixture;
    const QString name = QString::fromUtf8("100% \u00fcber #1.jpg");
    fixture.addImages({u"a.jpg"_s, name});
    QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    const QPoint place = placeOfRow(table, 1);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QDesktopServices::unsetUrlHandler(u"file"_s);
    QCOMPARE(urls, QList<QUrl>({QUrl::fromLocalFile(fixture.inputPath(name))}));
}

void RowsTest::openingWithoutACurrentFileDoesNothing_data()
{
    QTest::addColumn<bool>("rowWithoutItem");
    QTest::newRow("no row") << false;
    QTest::newRow("a current row without an item") << true;
}

void RowsTest::openingWithoutACurrentFileDoesNothing()
{
    QFETCH(bool, rowWithoutItem);
    WindowFixture fixture;
    if (rowWithoutItem) {
        auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
        table->insertRow(0);
        table->setCurrentCell(0, 0);
    }
    QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
    fixture.window.setopenselected();
    QDesktopServices::unsetUrlHandler(u"file"_s);
    QVERIFY(urls.isEmpty());
}

QTEST_MAIN(RowsTest)
#include "rows_test.moc"
