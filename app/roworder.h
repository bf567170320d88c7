#pragma once

#include "listorder.h"

#include <QHash>

QT_BEGIN_NAMESPACE
class QTableWidget;
class QTableWidgetItem;
QT_END_NAMESPACE

/// Puts the rows of a table into another order. Selection and current row follow their rows, with
/// one signal. Afterwards no header sorts the table, so the rows stay where they were put.
class RowOrder
{
public:
    /// `table` outlives this object.
    explicit RowOrder(QTableWidget &table);

    /// Notes that `item`, the first of its row, was added after all others. It is forgotten when
    /// its row is removed.
    void add(const QTableWidgetItem *item);

    void move(RowMove move);
    bool canMove(RowMove move) const;
    /// Moves the selected rows, together, between the rows `place` - 1 and `place`.
    void moveTo(int place);
    void sortByName();
    void sortAsAdded();
    bool isAsAdded() const;

private:
    SelectedRows selectedRows() const;
    ListOrder addedOrder() const;
    void apply(const ListOrder &order);
    void arrangeItems(const ListOrder &order);
    void select(const SelectedRows &rows, int currentRow);

    QTableWidget &m_table;
    QHash<const QTableWidgetItem *, int> m_added; // the number of each row's first item
    int m_nextNumber = 0;
};
