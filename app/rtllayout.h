#pragma once

#include <QString>

class QWidget;
class Ui_process;

/// Mirrors the places of the window's controls if it runs from right to left: Qt mirrors layouts
/// and views, but no widget at a fixed place. Paths and passwords still run from left to right.
void mirrorPlaces(const Ui_process &ui);

/// The same for the direct children of `parent`, a dialog.
void mirrorChildren(const QWidget &parent);

/// `path` with marks that keep its folders in their order, also those named in letters that run
/// from right to left.
QString leftToRight(QString path);
