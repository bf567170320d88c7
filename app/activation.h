#pragma once

class QApplication;

/// Gives the keyboard to each window of `application` that appears, and back to the window below a
/// dialog that goes, where no window manager does so: X servers without one leave it to the window
/// under the mouse. With a window manager it is a request that the manager decides on. Does nothing
/// on platforms other than X.
void activateWindows(QApplication &application);
