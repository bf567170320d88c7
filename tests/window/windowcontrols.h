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

/// The real window, worked by what its controls can be told, on whichever page they stand. Each
/// program that works the window does it with this; `WindowDriver` adds a person's mouse and keys.
class WindowControls
{
public:
    Process window;

    /// The control named `name`. A name that no such control has ends the program.
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

    /// Waits, at most `timeout` ms, until no child process is left; says whether that came about.
    static bool waitUntilQuiet(int timeout = 60000);
    /// Presses the convert button and waits for the end of a run one by one that is not merged. The
    /// window tells of it, so this takes as long as the run and no longer.
    void convertOneByOne() const;
};
