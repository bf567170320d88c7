// What happens to rows of the list: removal, sorting, opening, and who hears of a selection.

#include "windowfixture.h"

#include <QDesktopServices>
#include <QFrame>
#include <QHeaderView>
#include <QProperty>
#include <QTableWidget>

namespace {

/// Opens a protected member for reading: how many connections an object's signal has.
struct Receivers : QObject
{
    static int of(const QObject *sender, const char *signal)
    {
        return (sender->*(&Receivers::receivers))(signal);
    }
};

/// The preview hears of a selection change that many times.
int selectionConnections(WindowFixture &fixture)
{
    return Receivers::of(fixture.find<QTableWidget>("inputfiletableWidget"),
                         SIGNAL(itemSelectionChanged()));
}

/// Rows as "name", or "name size" with the size's padding taken away.
QStringList rowsOf(WindowFixture &fixture, bool withSizes = false)
{
    QStringList rows;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    for (int row = 0; row < table->rowCount(); ++row) {
        QString text = table->item(row, 0)->text().remove(fixture.inputPath({}));
        if (const QTableWidgetItem *size = table->item(row, 1); size && withSizes)
            text += QLatin1Char(' ') + size->text().trimmed();
        rows << text;
    }
    return rows;
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
        fixture.addImages({"a.jpg"});
    else if (step == QLatin1String("select"))
        selectRows(fixture, {0});
    else if (step == QLatin1String("remove"))
        fixture.click("removeButton");
    else if (step == QLatin1String("remove all"))
        fixture.click("removeallButton");
    else if (step == QLatin1String("cancelled open")) {
        const ModalAnswer cancel([](QWidget *) {});
        fixture.click("openfileButton");
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
    void clickStillAsksForAPreviewWithoutAConnection();
    void rowsStayAsAddedUntilAHeaderIsClicked();
    void sizesStayWithTheirFilesWhenSorted_data();
    void sizesStayWithTheirFilesWhenSorted();
    void doubleClickOpensTheFile();
    void openingWithoutACurrentFileDoesNothing_data();
    void openingWithoutACurrentFileDoesNothing();

private:
    QList<QUrl> urls;
};

void RowsTest::selectedRowsAreRemovedFromTheBottomUp()
{
    WindowFixture fixture;
    fixture.addImages({"0.jpg", "1.jpg", "2.jpg", "3.jpg", "4.jpg"});
    selectRows(fixture, {1, 3});
    QList<int> removed;
    connect(fixture.find<QTableWidget>("inputfiletableWidget")->model(),
            &QAbstractItemModel::rowsRemoved, this,
            [&removed](const QModelIndex &, int first) { removed << first; });
    fixture.click("removeButton");
    QCOMPARE(removed, QList<int>({3, 1}));
    QCOMPARE(rowsOf(fixture), QStringList({"0.jpg", "2.jpg", "4.jpg"}));
}

void RowsTest::cellsOfARowCountOnce()
{
    WindowFixture fixture;
    fixture.addImages({"0.jpg", "1.jpg"});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->setSelectionBehavior(QAbstractItemView::SelectItems);
    table->item(0, 0)->setSelected(true);
    table->item(0, 1)->setSelected(true);
    fixture.click("removeButton");
    QCOMPARE(rowsOf(fixture), QStringList({"1.jpg"}));
}

void RowsTest::emptiedListShowsTheDefaultPreview_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<bool>("shown");
    QTest::newRow("the last row removed") << QStringList{"add", "select", "remove"} << true;
    QTest::newRow("all rows removed") << QStringList{"add", "add", "remove all"} << true;
    QTest::newRow("removing from an empty list") << QStringList{"remove"} << true;
    QTest::newRow("removing all of an empty list") << QStringList{"remove all"} << false;
    QTest::newRow("nothing selected") << QStringList{"add", "remove"} << false;
    QTest::newRow("a row is left") << QStringList{"add", "add", "select", "remove"} << false;
}

void RowsTest::emptiedListShowsTheDefaultPreview()
{
    QFETCH(QStringList, steps);
    WindowFixture fixture;
    auto *frame = fixture.find<QFrame>("previewframe");
    QCOMPARE(frame->size(), QSize(151, 151));
    frame->resize(9, 9);
    for (const QString &step : steps)
        act(fixture, step);
    QTEST(frame->size() == QSize(151, 151), "shown");
}

void RowsTest::selectionConnectionsComeAndGo_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("connections");

    QTest::newRow("the constructor makes one") << QStringList{} << 1;
    QTest::newRow("a drop makes none") << QStringList{"add"} << 1;
    QTest::newRow("a cancelled dialog makes one more") << QStringList{"cancelled open"} << 2;
    QTest::newRow("each removal makes one more") << QStringList{"add", "remove", "remove"} << 3;
    QTest::newRow("removing the last row breaks all of them")
        << QStringList{"add", "cancelled open", "remove", "select", "remove"} << 0;
    QTest::newRow("removing from the emptied list makes one")
        << QStringList{"add", "select", "remove", "remove"} << 1;
    QTest::newRow("the dialog after that makes one more")
        << QStringList{"add", "select", "remove", "cancelled open"} << 1;
    QTest::newRow("removing all leaves one")
        << QStringList{"add", "remove", "cancelled open", "remove all"} << 1;
    QTest::newRow("removing all makes one after none were left")
        << QStringList{"add", "select", "remove", "add", "remove all"} << 1;
    QTest::newRow("removing all of an empty list changes nothing")
        << QStringList{"cancelled open", "remove all"} << 2;
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
    fixture.addImages({"c.jpg", "a.jpg"});
    fixture.addImages({"b.jpg"});
    QCOMPARE(rowsOf(fixture), QStringList({"c.jpg", "a.jpg", "b.jpg"}));
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    clickHeader(table, 0);
    QCOMPARE(table->horizontalHeader()->sortIndicatorSection(), 0);
    QVERIFY(rowsOf(fixture) != QStringList({"c.jpg", "a.jpg", "b.jpg"}));
}

void RowsTest::sizesStayWithTheirFilesWhenSorted_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QStringList>("rows");

    const QStringList byName{"a.jpg 0.003KB", "b.jpg 0.001KB", "c.jpg 0.004KB", "d.jpg 0.002KB"};
    const QStringList bySize{"b.jpg 0.001KB", "d.jpg 0.002KB", "a.jpg 0.003KB", "c.jpg 0.004KB"};
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
         {std::pair("d.jpg", 2), std::pair("a.jpg", 3), std::pair("c.jpg", 4)})
        files << QUrl::fromLocalFile(fixture.makeFile(name, QByteArray(size, 'x')));
    fixture.drop(files);
    fixture.drop({QUrl::fromLocalFile(fixture.makeFile("b.jpg", "x"))});
    QTEST(rowsOf(fixture, true), "rows");
    QVERIFY(table->isSortingEnabled());
}

void RowsTest::doubleClickOpensTheFile()
{
    WindowFixture fixture;
    const QString name = QString::fromUtf8("100% \u00fcber #1.jpg");
    fixture.addImages({"a.jpg", name});
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    const QPoint place = placeOfRow(table, 1);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
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
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "takeUrl");
    fixture.window.setopenselected();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QVERIFY(urls.isEmpty());
}

QTEST_MAIN(RowsTest)
#include "rows_test.moc"
