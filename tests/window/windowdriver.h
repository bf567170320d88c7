#pragma once

#include "windowcontrols.h"

#include <QPoint>
#include <QStringList>

/// Drives the real window as a user does: clicks go to a place on the window and hit what is there,
/// keys go to the focus, dialogs are answered by typing. Each step returns whether it succeeded.
class WindowDriver : public WindowControls
{
public:
    WindowDriver();

    /// Shows the window and waits until the user could see it.
    bool show();

    /// Clicks the middle of the control named `control`, or its left end when it is a check box.
    /// False if something else is there.
    bool click(const char *control);
    /// Clicks the file list's row `row`.
    bool clickRow(int row);
    /// Replaces the text of the field named `field`.
    bool type(const char *field, const QString &text);
    /// Chooses item `index` of the combo box named `box` with the arrow keys.
    bool choose(const char *box, int index);
    /// Ticks or clears the check box named `box`.
    bool tick(const char *box, bool on = true);

    /// Presses the Open button and answers the file dialog with `paths`.
    bool openFiles(const QStringList &paths);
    /// Presses the folder button and answers the folder dialog with `folder`.
    bool chooseFolder(const QString &folder);

    /// Presses the convert button and waits, at most `timeout` ms, until no tool runs any more.
    bool convert(int timeout);

    /// Saves what the screen shows of the window as a PNG file.
    bool saveScreenshot(const QString &path);

private:
    bool clickAt(QWidget *target, QPoint place);
    bool answerDialog(const char *button, const QString &text);
};
