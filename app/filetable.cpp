#include "filetable.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

namespace {

/// An empty list has nothing to show the focus on, nor anything to do there by keyboard.
void takeFocusWithRowsOnly(QTableWidget *table)
{
    const auto update = [table] {
        table->setFocusPolicy(table->rowCount() > 0 ? Qt::StrongFocus : Qt::NoFocus);
    };
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, table, update);
    QObject::connect(table->model(), &QAbstractItemModel::rowsRemoved, table, update);
    update();
}

/// What lies in the table would take its transparent ground and its border: black corner, scroll
/// bars whose slider is hard to see, and a black menu of theirs.
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

QTableWidget *placeFileTable(QWidget *parent)
{
    auto *table = new QTableWidget(parent);
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
    // Enabling sorting sorts at once by the header's indicator: without a section the rows stay
    // as added until the user clicks a header.
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
    // A stretched section gets no narrower than its own size: at the least possible one, no
    // scroll bar appears for the few pixels that the row numbers take.
    table.horizontalHeader()->resizeSection(1, table.horizontalHeader()->minimumSectionSize());
    table.setTextElideMode(Qt::ElideLeft); // of a long path the file name is what matters
    table.setWordWrap(false);
}
