#include "filetable.h"

#include "filetip.h"

#include <QAbstractButton>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

namespace {

/// An empty list takes no focus: there is nothing to do by keyboard.
void takeFocusWithRowsOnly(QTableWidget *table)
{
    const auto update = [table] {
        table->setFocusPolicy(table->rowCount() > 0 ? Qt::StrongFocus : Qt::NoFocus);
    };
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, table, update);
    QObject::connect(table->model(), &QAbstractItemModel::rowsRemoved, table, update);
    update();
}

/// Undoes what the table's parts inherit from its transparent background and border: a black
/// corner, scroll bars with a faint slider, and a black menu on them.
void styleParts(QTableWidget &table)
{
    if (auto *corner = table.findChild<QAbstractButton *>())
        corner->setStyleSheet(QStringLiteral(
            "QTableCornerButton::section {background-color:GhostWhite;border: 0px;}"));
    for (QScrollBar *bar : {table.horizontalScrollBar(), table.verticalScrollBar()})
        bar->setStyleSheet(QStringLiteral("QScrollBar {background:none;border:native;}"
                                          "QMenu {background-color:white;border:1px solid #6c6c6c;"
                                          "border-radius:0px;}"));
}

} // namespace

FileTable::FileTable(QWidget *parent)
    : QTableWidget(parent)
{
    setDragDropMode(QAbstractItemView::InternalMove);
    setDropIndicatorShown(false); // it frames a cell
}

bool FileTable::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && showRowTip(*static_cast<QHelpEvent *>(event)))
        return true;
    return QTableWidget::viewportEvent(event);
}

void FileTable::mousePressEvent(QMouseEvent *event)
{
    enableDrag(*event);
    QTableWidget::mousePressEvent(event);
}

void FileTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    enableDrag(*event); // its second press may begin a drag
    QTableWidget::mouseDoubleClickEvent(event);
}

void FileTable::enableDrag(const QMouseEvent &press)
{
    setDragEnabled(press.button() == Qt::LeftButton &&
                   selectionModel()->isSelected(indexAt(press.position().toPoint())));
}

/// Qt's own drag removes the rows when another program takes them.
void FileTable::startDrag(Qt::DropActions /*actions*/)
{
    auto *rows = new QMimeData; // without data for other programs
    rows->setData(QStringLiteral("application/x-tessaro-rows"), {});
    auto *drag = new QDrag(this); // Qt deletes both
    drag->setMimeData(rows);
    drag->exec(Qt::MoveAction);
}

void FileTable::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(event->source() == this);
}

void FileTable::dragMoveEvent(QDragMoveEvent *event)
{
    QTableWidget::dragMoveEvent(event); // scrolls at the edges
    m_dragY = event->position().toPoint().y();
    event->setDropAction(Qt::MoveAction);
    event->accept();
    viewport()->update();
}

void FileTable::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_dragY.reset();
    QTableWidget::dragLeaveEvent(event);
    viewport()->update();
}

void FileTable::dropEvent(QDropEvent *event)
{
    m_dragY.reset();
    stopAutoScroll();
    setState(NoState);
    m_order.moveTo(dropPlace(event->position().toPoint().y()));
    event->acceptProposedAction();
    viewport()->update();
}

void FileTable::paintEvent(QPaintEvent *event)
{
    QTableWidget::paintEvent(event);
    if (!m_dragY)
        return;
    constexpr int thickness = 3; // pixels, over the line between two rows
    const int place = dropPlace(*m_dragY);
    const int y = place == 0 ? 0 : rowViewportPosition(place - 1) + rowHeight(place - 1) - 2;
    QPainter(viewport()).fillRect(0, y, viewport()->width(), thickness, palette().highlight());
}

int FileTable::dropPlace(int y) const
{
    const int row = rowAt(y);
    if (row < 0)
        return y < 0 ? 0 : rowCount();
    const bool isUpperHalf = y < rowViewportPosition(row) + rowHeight(row) / 2;
    return isUpperHalf ? row : row + 1;
}

bool FileTable::isCutOff(int row) const
{
    for (int column = 0; column < columnCount(); ++column) {
        const QModelIndex cell = model()->index(row, column);
        if (sizeHintForIndex(cell).width() > visualRect(cell).width())
            return true;
    }
    return false;
}

bool FileTable::showRowTip(const QHelpEvent &event)
{
    const int row = rowAt(event.y());
    if (row < 0 || !isCutOff(row))
        return false;
    const QRect place(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
    QToolTip::showText(event.globalPos(), fileTip(model()->index(row, 0).data().toString()),
                       window(), QRect(viewport()->mapTo(window(), place.topLeft()), place.size()));
    return true;
}

FileTable *placeFileTable(QWidget *parent)
{
    auto *table = new FileTable(parent);
    table->setObjectName(QStringLiteral("inputfiletableWidget"));
    table->setGeometry(34, 20, 341, 211);
    table->setColumnCount(2);
    for (int column = 0; column < 2; ++column)
        table->setHorizontalHeaderItem(column, new QTableWidgetItem);
    table->setAutoFillBackground(true);
    table->setFrameShadow(QFrame::Raised);
    table->setLineWidth(2);
    table->setAutoScroll(true);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // Enabling sorting sorts at once by the header's indicator. Without a section the rows stay as
    // added until a click on a header.
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    table->horizontalHeader()->setDefaultSectionSize(165);
    table->horizontalHeader()->setMinimumSectionSize(40);
    table->horizontalHeader()->setStretchLastSection(true);
    // The style's minimum may be above the rows' height, which it would raise.
    table->verticalHeader()->setMinimumSectionSize(18);
    table->verticalHeader()->setDefaultSectionSize(18);
    table->verticalHeader()->setStretchLastSection(false);
    // The arrow keys go from row to row; Tab goes on to the next control.
    table->setTabKeyNavigation(false);
    takeFocusWithRowsOnly(table);
    return table;
}

void selectWholeRows(QTableWidget &table)
{
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void styleFileTable(QTableWidget &table)
{
    table.setStyleSheet(QStringLiteral(
        "background-color:transparent;border:1px solid #6c6c6c;border-radius: 5px;"));
    const auto headerStyle =
        QStringLiteral("QHeaderView::section {background-color:GhostWhite;color: black;"
                       "padding-left: 1px;border: 0px solid #6c6c6c;}");
    table.horizontalHeader()->setStyleSheet(headerStyle);
    table.verticalHeader()->setStyleSheet(headerStyle);
    styleParts(table);
    // A stretched section gets no narrower than its own size: at the minimum, no scroll bar appears
    // for the few pixels of the row numbers.
    table.horizontalHeader()->resizeSection(1, table.horizontalHeader()->minimumSectionSize());
    table.setTextElideMode(Qt::ElideLeft); // keeps the file name of a long path visible
    table.setWordWrap(false);
}
