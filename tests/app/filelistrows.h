#pragma once

#include "filetable.h"
#include "windowfixture.h"

#include <QAction>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>

#include <algorithm>

// The file list of the window, with its rows selected, dropped and sorted.

inline FileTable &listOf(WindowFixture &fixture)
{
    return dynamic_cast<FileTable &>(*fixture.find<QTableWidget>("inputfiletableWidget"));
}

inline void selectRows(FileTable &list, const QList<int> &rows)
{
    list.clearSelection();
    for (const int row : rows)
        list.selectionModel()->setCurrentIndex(
            list.model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

/// Drops the selected rows before row `place`: below the middle of the row above, or above the
/// middle of the row itself.
inline void dropRows(FileTable &list, int place, bool belowTheRowAbove)
{
    struct Opened : FileTable
    {
        using FileTable::dropEvent;
    };
    const int row = belowTheRowAbove ? place - 1 : place;
    list.scrollTo(list.model()->index(row, 0));
    const int y = list.rowViewportPosition(row) + (belowTheRowAbove ? list.rowHeight(row) - 1 : 0);
    const QMimeData rows;
    QDropEvent event(QPointF(5, y), Qt::MoveAction, &rows, Qt::LeftButton, Qt::NoModifier);
    (list.*(&Opened::dropEvent))(&event);
}

inline void sortBy(WindowFixture &fixture, const QString &actionText)
{
    const auto actions = listOf(fixture).actions();
    const auto action = std::ranges::find(actions, actionText, &QAction::text);
    if (action == actions.end())
        qFatal("no such action");
    (*action)->trigger();
}

inline void clickHeader(FileTable &list, int column)
{
    QHeaderView *header = list.horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

inline const QString byName = QStringLiteral("Sort by Name, 2 before 10");
inline const QString asAdded = QStringLiteral("Sort as Added");
