#pragma once

#include <QString>

class QWidget;
class Ui_process;

/// Turns the places of the window's controls around when it runs from right to left, and nothing
/// when it runs from left to right: Qt mirrors what lies in a layout or a view, not what
/// has a place of its own. Paths and passwords keep running from left to right.
void mirrorPlaces(const Ui_process &ui);

/// The same for the direct children of `parent`, a dialog.
void mirrorChildren(const QWidget &parent);

/// `path` with marks that keep its folders in their order, also those named in letters that run
/// from right to left.
QString leftToRight(QString path);
