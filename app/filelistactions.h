#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <functional>

QT_BEGIN_NAMESPACE
class QAction;
class QLineEdit;
class QMenu;
QT_END_NAMESPACE

class FileTable;
class Process;
class Ui_process;

/// The keyboard shortcuts of the file list and of the window, and the list's context menu, which
/// shows them. The actions call the window's slots and change the list's order.
class FileListActions : public QObject
{
public:
    /// Owned by `window`, whose layout is `ui`.
    FileListActions(Process &window, const Ui_process &ui);

private:
    using Condition = std::function<bool()>;

    struct Entry
    {
        QAction *action;
        Condition makesSense;
    };

    void addFileActions();
    void addOrderActions();
    void addRowActions();
    void addWindowActions();
    /// `keyOwner` is the widget that must have the focus for `keys`, or the window.
    QAction *add(QWidget &keyOwner, const char *text, const QList<QKeySequence> &keys,
                 const std::function<void()> &run, const Condition &makesSense);
    void disableWhatMakesNoSense();
    void enableAll();

    QString currentFile() const;
    QString currentPdf() const;

    Process &m_window;
    FileTable &m_table;
    const QLineEdit &m_outputFolder;
    QMenu &m_menu;
    QList<Entry> m_entries;
};
