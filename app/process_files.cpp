// The file list and the output folder.

#include "process.h"

#include "rememberedfolder.h"
#include "sizetext.h"
#include "ui_process.h"

#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QTableWidget>
#include <QUrl>

#include <set>

namespace {

constexpr int pathColumn = 0;
constexpr int sizeColumn = 1;

// The patterns' mixed separators are part of the text.
constexpr char imageFilter[] = QT_TRANSLATE_NOOP(
    "Process",
    "All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;"
    "BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;"
    "PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)");

} // namespace

void Process::connectSelection()
{
    // A plain connection: each call adds one, and each restarts the preview's delay.
    connect(ui->inputfiletableWidget, &QTableWidget::itemSelectionChanged, this,
            &Process::setpreview);
}

QString Process::inputPath(int row) const
{
    const QTableWidgetItem *item = ui->inputfiletableWidget->item(row, pathColumn);
    return item ? item->text() : QString();
}

void Process::appendFiles(const QStringList &paths)
{
    QTableWidget *table = ui->inputfiletableWidget;
    int row = table->rowCount();
    // A sorted table moves each row to its place, so its rows are made one by one.
    const bool sorted = table->horizontalHeader()->sortIndicatorSection() >= 0;
    if (!sorted)
        table->setRowCount(row + static_cast<int>(paths.size()));
    // The view lays out new rows together, later; it needs no signal for each cell.
    const QSignalBlocker blocker(sorted ? nullptr : table->model());
    for (const QString &path : paths) {
        if (sorted)
            table->insertRow(row);
        setFile(row, path);
        ++row;
    }
}

void Process::setFile(int row, const QString &path)
{
    FileTable *table = ui->inputfiletableWidget;
    const QString size = sizeText(QFileInfo(path).size());
    auto *pathItem = new QTableWidgetItem(path);
    auto *sizeItem = size.isEmpty() ? nullptr : new QTableWidgetItem(size);
    table->order().add(pathItem);
    // A sorted table moves the row as soon as the text that it sorts by is set.
    const bool pathMovesRow = table->horizontalHeader()->sortIndicatorSection() == pathColumn;
    if (pathMovesRow)
        table->setItem(row, sizeColumn, sizeItem);
    table->setItem(row, pathColumn, pathItem);
    if (!pathMovesRow)
        table->setItem(row, sizeColumn, sizeItem);
}

void Process::setopenfile()
{
    connectSelection();
    RememberedFolder inputFolder(QStringLiteral("dir/input"));
    const QStringList paths = QFileDialog::getOpenFileNames(this, tr("Choose files to convert"),
                                                            inputFolder.read(), tr(imageFilter));
    if (paths.isEmpty())
        return;
    inputFolder.write(QFileInfo(paths.first()).absolutePath());
    addFiles(paths);
}

void Process::addFiles(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    appendFiles(paths);
    QTableWidget *table = ui->inputfiletableWidget;
    table->selectionModel()->setCurrentIndex(table->model()->index(0, pathColumn),
                                             QItemSelectionModel::Select |
                                                 QItemSelectionModel::Rows);
}

void Process::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(QStringLiteral("text/uri-list")))
        event->acceptProposedAction();
}

void Process::dropEvent(QDropEvent *event)
{
    QStringList paths;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (path.isEmpty())
            break;
        paths << path;
    }
    appendFiles(paths);
}

void Process::removeRow(int row)
{
    QTableWidget *table = ui->inputfiletableWidget;
    if (table->rowCount() == 1)
        disconnect(table, &QTableWidget::itemSelectionChanged, this, &Process::setpreview);
    table->removeRow(row);
}

void Process::setremove()
{
    connectSelection();
    QTableWidget *table = ui->inputfiletableWidget;
    std::set<int, std::greater<>> rows; // from the bottom up, so that the numbers above stay valid
    const QModelIndexList selected = table->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        rows.insert(index.row());
    for (const int row : rows)
        removeRow(row);
    if (table->rowCount() == 0)
        setdefaultpreview();
}

void Process::setremoveall()
{
    if (ui->inputfiletableWidget->rowCount() == 0)
        return;
    // All but the first row in one go: the table renumbers and lays out its rows each time.
    ui->inputfiletableWidget->setRowCount(1);
    removeRow(0);
    setdefaultpreview();
    connectSelection();
}

void Process::setopenselected()
{
    const QString path = inputPath(ui->inputfiletableWidget->currentRow());
    if (!path.isEmpty())
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void Process::setoutputfile()
{
    RememberedFolder outputFolder(QStringLiteral("dir/output"));
    const QString folder = QFileDialog::getExistingDirectory(
        this, tr("Browse a floder to save the converted files."), outputFolder.read(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    ui->outputfolderEdit->setText(folder);
    outputFolder.write(folder);
}
