#pragma once

#include "roworder.h"

#include <QTableWidget>

#include <optional>

/// The file list's table. Selected rows can be dragged to another place; dropped files are left to
/// the window. It has no meta object, so its class name remains Qt's.
class FileTable : public QTableWidget
{
public:
    explicit FileTable(QWidget *parent);

    RowOrder &order() { return m_order; }

protected:
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// A drag moves selected rows; begun on any other row, it selects rows.
    void enableDrag(const QMouseEvent &press);
    bool isCutOff(int row) const;
    /// Returns false for a row whose texts are not cut off: it has no tip.
    bool showRowTip(const QHelpEvent &event);
    /// The row before which rows dropped at `y` (pixels in the viewport) are inserted.
    int dropPlace(int y) const;

    RowOrder m_order{*this};
    std::optional<int> m_dragY; // while rows are dragged over the list, as for dropPlace()
};

/// The file list's table, set up as the window is constructed: the layout places it, its rows are
/// made selectable when the controls are connected, and it is styled at the end.
FileTable *placeFileTable(QWidget *parent);
void selectWholeRows(QTableWidget &table);
void styleFileTable(QTableWidget &table);
