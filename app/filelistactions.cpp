#include "filelistactions.h"

#include "commandline.h"
#include "filemanager.h"
#include "filetable.h"
#include "process.h"
#include "ui_process.h"

#include <QAction>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QUrl>

FileListActions::FileListActions(Process &window, const Ui_process &ui)
    : QObject(&window)
    , m_window(window)
    , m_table(*ui.inputfiletableWidget)
    , m_outputFolder(*ui.outputfolderEdit)
    , m_menu(*new QMenu(&window)) // a child of the list would inherit its transparent background
{
    m_menu.setObjectName(QStringLiteral("fileListMenu"));
    addFileActions();
    m_menu.addSeparator();
    addOrderActions();
    m_menu.addSeparator();
    addRowActions();
    m_menu.addSeparator();
    addWindowActions();

    // A disabled action has no key, so actions are disabled only while the menu shows them.
    connect(&m_menu, &QMenu::aboutToShow, this, &FileListActions::disableWhatMakesNoSense);
    connect(&m_menu, &QMenu::aboutToHide, this, &FileListActions::enableAll);
    m_table.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&m_table, &QWidget::customContextMenuRequested, this,
            [this](QPoint place) { m_menu.popup(m_table.viewport()->mapToGlobal(place)); });
}

void FileListActions::addFileActions()
{
    const Condition hasFile = [this] { return !currentFile().isEmpty(); };
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Open Image"), {Qt::Key_Return, Qt::Key_Enter},
        [this] { m_window.setopenselected(); }, hasFile);
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Open PDF"), {},
        [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(currentPdf())); },
        [this] { return QFileInfo(currentPdf()).isFile(); });
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Show in Folder"), {},
        [this] { showInFolder(currentFile()); }, hasFile);
}

void FileListActions::addOrderActions()
{
    const struct
    {
        const char *text;
        Qt::Key key;
        RowMove move;
    } moves[] = {
        {QT_TRANSLATE_NOOP("process", "Move Up"), Qt::Key_Up, RowMove::Up},
        {QT_TRANSLATE_NOOP("process", "Move Down"), Qt::Key_Down, RowMove::Down},
        {QT_TRANSLATE_NOOP("process", "Move to Top"), Qt::Key_Home, RowMove::ToTop},
        {QT_TRANSLATE_NOOP("process", "Move to Bottom"), Qt::Key_End, RowMove::ToBottom},
    };
    RowOrder &order = m_table.order();
    for (const auto &[text, key, move] : moves) {
        QAction *action = add(
            m_table, text, {Qt::ALT | key}, [&order, move = move] { order.move(move); },
            [&order, move = move] { return order.canMove(move); });
        action->setAutoRepeat(true);
    }
    m_menu.addSeparator();
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Sort by Name, 2 before 10"), {},
        [&order] { order.sortByName(); }, [this] { return m_table.rowCount() > 1; });
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Sort as Added"), {},
        [&order] { order.sortAsAdded(); }, [&order] { return !order.isAsAdded(); });
}

void FileListActions::addRowActions()
{
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Select All"), {QKeySequence::SelectAll},
        [this] { m_table.selectAll(); }, [this] { return m_table.rowCount() > 0; });
    add(
        m_table, QT_TRANSLATE_NOOP("process", "Remove"), {Qt::Key_Delete},
        [this] { m_window.setremove(); },
        [this] { return m_table.selectionModel()->hasSelection(); });
}

void FileListActions::addWindowActions()
{
    const Condition always = [] { return true; };
    add(
        m_window, QT_TRANSLATE_NOOP("process", "Add Images..."), {QKeySequence::Open},
        [this] { m_window.setopenfile(); }, always);
    add(
        m_window, QT_TRANSLATE_NOOP("process", "Convert"),
        {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}, [this] { m_window.convertbegin(); },
        [this] { return m_table.rowCount() > 0; });
    m_menu.addSeparator();
    add(
        m_window, QT_TRANSLATE_NOOP("process", "About"), {Qt::Key_F1},
        [this] { m_window.setabout1(); }, always);
    add(
        m_window, QT_TRANSLATE_NOOP("process", "Quit"), {Qt::CTRL | Qt::Key_Q},
        [this] { m_window.close(); }, always);
}

QAction *FileListActions::add(QWidget &keyOwner, const char *text, const QList<QKeySequence> &keys,
                              const std::function<void()> &run, const Condition &makesSense)
{
    QAction *action = m_menu.addAction(QCoreApplication::translate("process", text));
    action->setShortcuts(keys);
    action->setShortcutContext(&keyOwner == &m_window ? Qt::WindowShortcut : Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    action->setAutoRepeat(false); // a key held down converts once
    keyOwner.addAction(action);
    connect(action, &QAction::triggered, this, run);
    m_entries.append({action, makesSense});
    return action;
}

void FileListActions::disableWhatMakesNoSense()
{
    for (const auto &[action, makesSense] : std::as_const(m_entries))
        action->setEnabled(makesSense());
}

void FileListActions::enableAll()
{
    for (const auto &[action, makesSense] : std::as_const(m_entries))
        action->setEnabled(true);
}

QString FileListActions::currentFile() const
{
    const QTableWidgetItem *item = m_table.item(m_table.currentRow(), 0);
    return item ? item->text() : QString();
}

QString FileListActions::currentPdf() const
{
    const QString folder = m_outputFolder.text(), file = currentFile();
    if (folder.isEmpty() || file.isEmpty())
        return {};
    return QFileInfo(unquoted(outputPath(folder, file))).absoluteFilePath();
}
