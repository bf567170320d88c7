#pragma once

#include "process.h"

#include <QList>
#include <QString>
#include <QUrl>

/// A row of the file list, as it reads.
struct ListedFile
{
    QString path;
    QString size; // null where the row has none
};

/// Drives the real window through the methods of its controls, on any page. `WindowDriver` adds
/// mouse and keys.
class WindowControls
{
public:
    Process window;

    /// The control named `name`. Ends the program if there is none.
    template <class Widget>
    Widget *find(const char *name) const
    {
        auto *widget = window.findChild<Widget *>(QLatin1String(name));
        if (!widget)
            qFatal("no such object: %s", name);
        return widget;
    }

    /// Drops `files` on the window, as the desktop would.
    void drop(const QList<QUrl> &files);
    /// Replaces the text of the field named `field`.
    void fill(const char *field, const QString &text) const;
    /// Chooses item `index` of the combo box named `box`.
    void select(const char *box, int index) const;
    /// Ticks or clears the check box named `box`.
    void check(const char *box, bool checked = true) const;
    /// Presses the button named `button`.
    void press(const char *button) const;

    QList<ListedFile> listedFiles() const;

    /// Waits, at most `timeout` ms, until no child process is left; returns whether that happened.
    static bool waitUntilQuiet(int timeout = 60000);
    /// Presses the convert button and waits for the end of a one-by-one run, without polling.
    void convertOneByOne() const;
};
