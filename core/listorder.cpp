#include "listorder.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <numeric>

namespace {

ListOrder unchangedOrder(std::size_t rows)
{
    ListOrder order(rows);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

QCollator naturalCollator()
{
    // The C locale compares character codes, digits included.
    const QLocale users = QLocale::system().collation();
    QCollator collator(users.language() == QLocale::C ? QLocale(QLocale::English) : users);
    collator.setNumericMode(true);
    return collator;
}

struct SortKeys
{
    QCollatorSortKey folder;
    QCollatorSortKey name;

    bool operator<(const SortKeys &other) const
    {
        const int folders = folder.compare(other.folder);
        return folders != 0 ? folders < 0 : name < other.name;
    }
};

std::vector<SortKeys> sortKeys(const QStringList &paths)
{
    const QCollator collator = naturalCollator();
    QHash<QString, QCollatorSortKey> folders;
    std::vector<SortKeys> keys;
    keys.reserve(static_cast<std::size_t>(paths.size()));
    for (const QString &path : paths) {
        const qsizetype nameStart = path.lastIndexOf(QLatin1Char('/')) + 1;
        const QString folder = path.left(nameStart);
        auto folderKey = folders.constFind(folder);
        if (folderKey == folders.constEnd())
            folderKey = folders.insert(folder, collator.sortKey(folder));
        keys.push_back({*folderKey, collator.sortKey(path.mid(nameStart))});
    }
    return keys;
}

} // namespace

ListOrder orderAfterMove(const SelectedRows &selected, RowMove move)
{
    ListOrder order = unchangedOrder(selected.size());
    if (move == RowMove::ToTop)
        return orderAfterMoveTo(selected, 0);
    if (move == RowMove::ToBottom)
        return orderAfterMoveTo(selected, static_cast<int>(selected.size()));
    if (selected.empty())
        return order;
    if (move == RowMove::Up && !selected.front()) {
        for (std::size_t row = 1; row < selected.size(); ++row) {
            if (selected[row])
                std::swap(order[row - 1], order[row]);
        }
    }
    if (move == RowMove::Down && !selected.back()) {
        for (std::size_t row = selected.size() - 1; row > 0; --row) {
            if (selected[row - 1])
                std::swap(order[row - 1], order[row]);
        }
    }
    return order;
}

ListOrder orderAfterMoveTo(const SelectedRows &selected, int place)
{
    ListOrder order = unchangedOrder(selected.size());
    const auto isSelected = [&selected](int row) {
        return selected[static_cast<std::size_t>(row)];
    };
    const auto gap = order.begin() + place;
    std::stable_partition(order.begin(), gap, std::not_fn(isSelected));
    std::stable_partition(gap, order.end(), isSelected);
    return order;
}

ListOrder naturalOrder(const QStringList &paths)
{
    const std::vector<SortKeys> keys = sortKeys(paths);
    ListOrder order = unchangedOrder(keys.size());
    std::ranges::stable_sort(order, [&keys](int a, int b) {
        return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
    });
    return order;
}
