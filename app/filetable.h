#pragma once

#include "roworder.h"

#include <QTableWidget>

#include <optional>

/// The file list's table. Selected rows can be dragged to another place, and files from elsewhere
/// are left to the window. It has no meta object of its own, so that its class name stays Qt's.
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
    /// Selected rows are dragged; from any other, rows are selected by sweeping over them.
    void enableDrag(const QMouseEvent &press);
    bool isCutOff(int row) const;
    /// Says whether it did: a row whose texts show whole has no tip of its own.
    bool showRowTip(const QHelpEvent &event);
    /// The row before which rows dropped at `y` come, pixels in the viewport.
    int dropPlace(int y) const;

    RowOrder m_order{*this};
    std::optional<int> m_dragY; // while rows are dragged over the list, as for dropPlace()
};

/// The file list's table, set up as the window is constructed: the layout places it, its rows are
/// made selectable when the controls are connected, and it is styled at the end.
FileTable *placeFileTable(QWidget *parent);
void selectWholeRows(QTableWidget &table);
void styleFileTable(QTableWidget &table);
