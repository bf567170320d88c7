#pragma once

class QTableWidget;
class QWidget;

/// The file list's table, set up as the window is constructed: the layout places it, its rows are
/// made selectable when the controls are connected, and it is styled at the end.
QTableWidget *placeFileTable(QWidget *parent);
void selectWholeRows(QTableWidget &table);
void styleFileTable(QTableWidget &table);
