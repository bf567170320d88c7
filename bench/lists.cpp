// 10,000 files dropped on the list and taken off it, beside a bare table with the same texts; and
// put into another order, beside the drop.
//
//   bench_lists add|add-sorted|add-asked|remove|move|sort FOLDER TURNS
//
// FOLDER holds the files. With "add-asked" the bare table's filler asks for the sizes, too. Prints
// the samples in milliseconds, each from the drop or the click to the painted list.

#include "filesin.h"
#include "filetable.h"
#include "samples.h"
#include "startup.h"
#include "windowcontrols.h"

#include <QApplication>
#include <QFileInfo>
#include <QPushButton>
#include <QTableWidget>
#include <QUrl>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(552, 484);

void sortByPath(QTableWidget &table)
{
    table.setSortingEnabled(true);
    table.sortByColumn(0, Qt::DescendingOrder);
}

double measured(const std::function<void()> &work)
{
    return millisecondsOf([&work] {
        work();
        QApplication::processEvents();
    });
}

/// The application's window with its list.
class Ours
{
public:
    explicit Ours(bool sorted)
    {
        if (sorted)
            sortByPath(*controls.find<QTableWidget>("inputfiletableWidget"));
        controls.window.show();
        QApplication::processEvents();
    }

    double add(const QList<QUrl> &urls)
    {
        return measured([&] { controls.drop(urls); });
    }

    double removeAll()
    {
        auto *button = controls.find<QPushButton>("removeallButton");
        return measured([button] { button->click(); });
    }

    /// Moves every other row to the top.
    double moveHalf()
    {
        FileTable &list = this->list();
        QItemSelection everyOther;
        for (int row = 1; row < list.rowCount(); row += 2)
            everyOther.select(list.model()->index(row, 0), list.model()->index(row, 1));
        list.selectionModel()->select(everyOther, QItemSelectionModel::ClearAndSelect);
        QApplication::processEvents();
        return measured([&list] { list.order().move(RowMove::ToTop); });
    }

    double sortByName()
    {
        return measured([this] { list().order().sortByName(); });
    }

    QList<ListedFile> rows() const { return controls.listedFiles(); }

private:
    FileTable &list() const
    {
        return dynamic_cast<FileTable &>(*controls.find<QTableWidget>("inputfiletableWidget"));
    }

    WindowControls controls;
};

/// Qt's table alone, in a window of the same size.
class Bare
{
public:
    explicit Bare(bool sorted)
        : table(0, 2)
    {
        if (sorted)
            sortByPath(table);
        table.setFixedSize(windowSize);
        table.show();
        QApplication::processEvents();
    }

    double fill(const QList<ListedFile> &rows, bool asking)
    {
        return measured([&] {
            for (const ListedFile &row : rows) {
                if (asking && QFileInfo(row.path).size() < 0)
                    return;
                int place = table.rowCount();
                table.insertRow(place);
                auto *item = new QTableWidgetItem(row.path);
                table.setItem(place, 0, item);
                place = item->row();
                table.setItem(place, 1, new QTableWidgetItem(row.size));
            }
        });
    }

    double empty()
    {
        return measured([this] { table.setRowCount(0); });
    }

private:
    QTableWidget table;
};

// No order that a sorted table would find ready.
QList<QUrl> shuffled(QList<QUrl> urls)
{
    std::mt19937 random(1);
    std::shuffle(urls.begin(), urls.end(), random);
    return urls;
}

QList<ListedFile> textsOf(const QList<QUrl> &urls)
{
    Ours ours(false);
    ours.add(urls);
    return ours.rows();
}

Samples adding(const QList<QUrl> &urls, bool sorted, bool asking, int turns)
{
    const QList<ListedFile> rows = textsOf(urls);
    Samples samples;
    samples.takeInTurn(
        turns, [&] { return Ours(sorted).add(urls); },
        [&] { return Bare(sorted).fill(rows, asking); });
    return samples;
}

Samples removing(const QList<QUrl> &urls, int turns)
{
    const QList<ListedFile> rows = textsOf(urls);
    Ours ours(false);
    Bare bare(false);
    Samples samples;
    samples.takeInTurn(
        turns,
        [&] {
            ours.add(urls);
            return ours.removeAll();
        },
        [&] {
            bare.fill(rows, false);
            return bare.empty();
        });
    return samples;
}

/// Rows put into another order, beside the drop of the same files.
Samples reordering(const QList<QUrl> &urls, double (Ours::*reorder)(), int turns)
{
    Samples samples;
    samples.takeInTurn(
        turns,
        [&] {
            Ours ours(false);
            ours.add(urls);
            return (ours.*reorder)();
        },
        [&] { return Ours(false).add(urls); });
    return samples;
}

Samples samplesOf(const QByteArray &mode, const QList<QUrl> &urls, int turns)
{
    if (mode == "remove")
        return removing(urls, turns);
    if (mode == "move")
        return reordering(urls, &Ours::moveHalf, turns);
    if (mode == "sort")
        return reordering(urls, &Ours::sortByName, turns);
    return adding(urls, mode == "add-sorted", mode == "add-asked", turns);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    if (argc != 4)
        return 2;
    const QByteArray mode(argv[1]);
    const QList<QUrl> urls = shuffled(filesIn(QString::fromLocal8Bit(argv[2])));
    const int turns = std::atoi(argv[3]);
    if (urls.isEmpty() || turns < 1)
        return 2;
    samplesOf(mode, urls, turns).print();
    return 0;
}
