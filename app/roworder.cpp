#include "roworder.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>
#include <numeric>

RowOrder::RowOrder(QTableWidget &table)
    : m_table(table)
{
    QObject::connect(table.model(), &QAbstractItemModel::rowsAboutToBeRemoved, &table,
                     [this](const QModelIndex &, int first, int last) {
                         for (int row = first; row <= last; ++row)
                             m_added.remove(m_table.item(row, 0));
                     });
}

void RowOrder::add(const QTableWidgetItem *item)
{
    m_added.insert(item, m_nextNumber++);
}

void RowOrder::move(RowMove move)
{
    apply(orderAfterMove(selectedRows(), move));
}

bool RowOrder::canMove(RowMove move) const
{
    return !std::ranges::is_sorted(orderAfterMove(selectedRows(), move));
}

void RowOrder::moveTo(int place)
{
    apply(orderAfterMoveTo(selectedRows(), place));
}

void RowOrder::sortByName()
{
    QStringList paths;
    for (int row = 0; row < m_table.rowCount(); ++row)
        paths << m_table.model()->index(row, 0).data().toString();
    apply(naturalOrder(paths));
}

void RowOrder::sortAsAdded()
{
    apply(addedOrder());
}

bool RowOrder::isAsAdded() const
{
    return std::ranges::is_sorted(addedOrder());
}

ListOrder RowOrder::addedOrder() const
{
    ListOrder order(static_cast<std::size_t>(m_table.rowCount()));
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {},
                             [this](int row) { return m_added.value(m_table.item(row, 0)); });
    return order;
}

SelectedRows RowOrder::selectedRows() const
{
    SelectedRows rows(static_cast<std::size_t>(m_table.rowCount()));
    // By ranges: a query for each row would search all of them each time.
    const QItemSelection selection = m_table.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        std::fill(rows.begin() + range.top(), rows.begin() + range.bottom() + 1, true);
    return rows;
}

void RowOrder::apply(const ListOrder &order)
{
    if (std::ranges::is_sorted(order))
        return;
    m_table.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    const SelectedRows selected = selectedRows();
    SelectedRows selectedAfter;
    selectedAfter.reserve(order.size());
    for (const int row : order)
        selectedAfter.push_back(selected[static_cast<std::size_t>(row)]);
    const auto current = std::ranges::find(order, m_table.currentRow());
    arrangeItems(order);
    select(selectedAfter, current == order.end() ? -1 : static_cast<int>(current - order.begin()));
}

void RowOrder::arrangeItems(const ListOrder &order)
{
    QAbstractItemModel &model = *m_table.model();
    {
        const QSignalBlocker blocker(&model); // the view needs no signal for each cell
        const int columns = m_table.columnCount();
        std::vector<QTableWidgetItem *> items;
        items.reserve(order.size() * static_cast<std::size_t>(columns));
        for (const int row : order) {
            for (int column = 0; column < columns; ++column)
                items.push_back(m_table.takeItem(row, column));
        }
        auto item = items.begin();
        for (int row = 0; row < m_table.rowCount(); ++row) {
            for (int column = 0; column < columns; ++column)
                m_table.setItem(row, column, *item++);
        }
    }
    emit model.dataChanged(model.index(0, 0),
                           model.index(model.rowCount() - 1, model.columnCount() - 1));
}

void RowOrder::select(const SelectedRows &rows, int currentRow)
{
    const QAbstractItemModel &model = *m_table.model();
    QItemSelection selection;
    for (auto first = std::ranges::find(rows, true); first != rows.end();) {
        const auto end = std::find(first, rows.end(), false);
        selection.append(
            {model.index(static_cast<int>(first - rows.begin()), 0),
             model.index(static_cast<int>(end - rows.begin()) - 1, model.columnCount() - 1)});
        first = std::find(end, rows.end(), true);
    }
    {
        const QSignalBlocker blocker(&m_table);
        // Qt compares each range of the new selection with each of the old: there are none then.
        m_table.clearSelection();
        // Through the table, which from then on extends selections from this row.
        if (currentRow >= 0)
            m_table.setCurrentIndex(model.index(currentRow, m_table.currentColumn()));
        m_table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    if (!selection.isEmpty())
        emit m_table.itemSelectionChanged();
}
