// Orders of a list: selected rows moved, and files sorted by name with numbers by their value.

#include "listorder.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Rows are written as letters, the selected ones as capitals: "aBc".
SelectedRows selectedIn(const QString &rows)
{
    SelectedRows selected;
    for (const QChar row : rows)
        selected.push_back(row.isUpper());
    return selected;
}

QString inOrder(const QString &rows, const ListOrder &order)
{
    QString result;
    for (const int row : order)
        result += rows[row];
    return result;
}

} // namespace

Q_DECLARE_METATYPE(RowMove)

class ListOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void selectedRowsAreMoved_data();
    void selectedRowsAreMoved();
    void selectedRowsAreMovedToAPlace_data();
    void selectedRowsAreMovedToAPlace();
    void namesAreSortedNaturally_data();
    void namesAreSortedNaturally();
    void namesAlikeKeepTheirOrder();
};

void ListOrderTest::selectedRowsAreMoved_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<RowMove>("move");
    QTest::addColumn<QString>("result");

    QTest::newRow("one up") << u"abCd"_s << RowMove::Up << u"aCbd"_s;
    QTest::newRow("one down") << u"aBcd"_s << RowMove::Down << u"acBd"_s;
    QTest::newRow("one to the top") << u"abCd"_s << RowMove::ToTop << u"Cabd"_s;
    QTest::newRow("one to the bottom") << u"aBcd"_s << RowMove::ToBottom << u"acdB"_s;
    QTest::newRow("neighbours up") << u"aBCd"_s << RowMove::Up << u"BCad"_s;
    QTest::newRow("neighbours down") << u"aBCd"_s << RowMove::Down << u"adBC"_s;
    QTest::newRow("two apart up") << u"aBcDe"_s << RowMove::Up << u"BaDce"_s;
    QTest::newRow("two apart down") << u"aBcDe"_s << RowMove::Down << u"acBeD"_s;
    QTest::newRow("two apart to the top") << u"aBcDe"_s << RowMove::ToTop << u"BDace"_s;
    QTest::newRow("two apart to the bottom") << u"aBcDe"_s << RowMove::ToBottom << u"aceBD"_s;
    QTest::newRow("together they stop at the top") << u"AbCd"_s << RowMove::Up << u"AbCd"_s;
    QTest::newRow("together they stop at the bottom") << u"aBcD"_s << RowMove::Down << u"aBcD"_s;
    QTest::newRow("from the top to the top") << u"AbCd"_s << RowMove::ToTop << u"ACbd"_s;
    QTest::newRow("none selected") << u"abc"_s << RowMove::ToTop << u"abc"_s;
    QTest::newRow("all selected") << u"ABC"_s << RowMove::Down << u"ABC"_s;
    for (const RowMove move : {RowMove::Up, RowMove::Down, RowMove::ToTop, RowMove::ToBottom})
        QTest::addRow("an empty list, move %d", static_cast<int>(move))
            << QString() << move << QString();
}

void ListOrderTest::selectedRowsAreMoved()
{
    QFETCH(QString, rows);
    QFETCH(RowMove, move);
    QTEST(inOrder(rows, orderAfterMove(selectedIn(rows), move)), "result");
}

void ListOrderTest::selectedRowsAreMovedToAPlace_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("result");

    QTest::newRow("upwards") << u"abcD"_s << 1 << u"aDbc"_s;
    QTest::newRow("downwards") << u"Abcd"_s << 3 << u"bcAd"_s;
    QTest::newRow("before itself") << u"aBc"_s << 1 << u"aBc"_s;
    QTest::newRow("behind itself") << u"aBc"_s << 2 << u"aBc"_s;
    QTest::newRow("to the end") << u"aBc"_s << 3 << u"acB"_s;
    QTest::newRow("to the beginning") << u"aBc"_s << 0 << u"Bac"_s;
    QTest::newRow("several come together") << u"AbcDeF"_s << 2 << u"bADFce"_s;
    QTest::newRow("an empty list") << QString() << 0 << QString();
}

void ListOrderTest::selectedRowsAreMovedToAPlace()
{
    QFETCH(QString, rows);
    QFETCH(int, place);
    QTEST(inOrder(rows, orderAfterMoveTo(selectedIn(rows), place)), "result");
}

void ListOrderTest::namesAreSortedNaturally_data()
{
    QTest::addColumn<QStringList>("sorted");
    QTest::newRow("2 before 10") << QStringList{u"/n/scan2.png"_s, u"/n/scan10.png"_s};
    QTest::newRow("numbers within a name")
        << QStringList{u"/n/p2-9.png"_s, u"/n/p2-10.png"_s, u"/n/p10-1.png"_s};
    QTest::newRow("folders by their numbers")
        << QStringList{u"/n/day 9/b.png"_s, u"/n/day 10/a.png"_s};
    QTest::newRow("the folder before the name")
        << QStringList{u"/n/a/9.png"_s, u"/n/b/1.png"_s, u"/n/b/2.png"_s};
    QTest::newRow("a folder before those in it") << QStringList{u"/n/z.png"_s, u"/n/a/a.png"_s};
    QTest::newRow("capitals among small letters")
        << QStringList{u"/n/a.png"_s, u"/n/B.png"_s, u"/n/c.png"_s};
    QTest::newRow("accents beside their letters")
        << QStringList{u"/n/e.png"_s, u"/n/\u00e9.png"_s, u"/n/f.png"_s};
    QTest::newRow("no folder") << QStringList{u"1.png"_s, u"2.png"_s};
    QTest::newRow("none") << QStringList{};
}

void ListOrderTest::namesAreSortedNaturally()
{
    QFETCH(QStringList, sorted);
    QStringList paths = sorted;
    std::ranges::sort(paths, std::greater());
    do {
        QStringList result;
        const ListOrder order = naturalOrder(paths);
        for (const int row : order)
            result << paths[row];
        QCOMPARE(result, sorted);
    } while (std::ranges::prev_permutation(paths).found);
}

void ListOrderTest::namesAlikeKeepTheirOrder()
{
    constexpr int rows = 100;
    const ListOrder order = naturalOrder(QStringList(rows, u"/n/a.png"_s));
    QCOMPARE(order.size(), std::size_t(rows));
    QVERIFY(std::ranges::is_sorted(order));
}

QTEST_GUILESS_MAIN(ListOrderTest)
#include "listorder_test.moc"
