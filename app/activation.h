#pragma once

class QApplication;

/// Gives the keyboard to each window of `application` that appears, and back to the one shown
/// before it when it closes, where no window manager does so: X servers without one leave it to the
/// window under the mouse. With a window manager it is a request that the manager decides on. Does
/// nothing on platforms other than X.
void activateWindows(QApplication &application);

/// Tells the window system of `application` which window the list of a completer belongs to. Qt 6.8
/// on Wayland otherwise opens that list as an independent window, which takes the keyboard: what is
/// typed next replaces what the field holds.
void attachPopups(QApplication &application);

/// Opens a window of `application` with a fixed size again when it is maximized on Wayland, and
/// closes a modal one. Qt (6.4, 6.8) draws a button for that on every window and cannot be asked
/// not to; Weston ends a program whose maximized window has another size than the screen.
void keepFixedSizes(QApplication &application);
