// 10,000 random changes of the list beside a plain list that is changed alike.

#include "filelistrows.h"

#include <functional>
#include <random>

using namespace Qt::StringLiterals;

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

class RowOrderRandomTest : public QObject
{
    Q_OBJECT

private slots:
    void noRowIsEverLost();
};

void RowOrderRandomTest::noRowIsEverLost()
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

QTEST_MAIN(RowOrderRandomTest)
#include "roworder_random_test.moc"
