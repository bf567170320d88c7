#pragma once

class QTableWidget;
class QWidget;

/// The file list's table, furnished as the window comes about: the layout places it, its rows are
/// made selectable when the controls are connected, and it is styled at the end.
QTableWidget *placeFileTable(QWidget *parent);
void selectWholeRows(QTableWidget &table);
void styleFileTable(QTableWidget &table);
