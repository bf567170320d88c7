#pragma once

class QApplication;

/// Gives the keyboard to each window of `application` that appears and, when it closes, back to the
/// one shown before it. X only: a server without a window manager leaves the keyboard to the window
/// under the mouse. A window manager decides for itself.
void activateWindows(QApplication &application);

/// Sets the parent window of each completer's list in `application`. Without one, Qt 6.8 on Wayland
/// opens the list as an independent window, which takes the keyboard: what is typed next replaces
/// the field's text.
void attachPopups(QApplication &application);

/// On Wayland, reopens a window of fixed size in `application` that is maximized, and closes a
/// modal one. Qt (6.4, 6.8) draws a maximize button on every window, and Weston ends a program
/// whose maximized window has another size than the screen.
void keepFixedSizes(QApplication &application);
