#pragma once

#include <QStringList>

#include <vector>

/// An order of a list's rows: for each new place, from the top, the present row.
using ListOrder = std::vector<int>;

/// For each row of a list whether it is selected.
using SelectedRows = std::vector<bool>;

enum class RowMove { Up, Down, ToTop, ToBottom };

/// The order after moving the selected rows, which keep their relative order. Moved by one row, all
/// stay where they are if one of them is at the edge.
ListOrder orderAfterMove(const SelectedRows &selected, RowMove move);

/// The order after moving the selected rows, together, between the rows `place` - 1 and `place`.
ListOrder orderAfterMoveTo(const SelectedRows &selected, int place);

/// By folder, then by file name, as the user's language sorts, with numbers by their value: scan2
/// before scan10. Equal names keep their order.
ListOrder naturalOrder(const QStringList &paths);
