// The input list, the preview of its current row, and the output folder.

#include "process.h"

#include "pixmaps.h"
#include "previewbox.h"
#include "regularfile.h"
#include "sizetext.h"
#include "ui_process.h"

#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QHeaderView>
#include <QImageReader>
#include <QLineEdit>
#include <QMimeData>
#include <QSettings>
#include <QTableWidget>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <set>

namespace {

constexpr std::chrono::milliseconds previewDelay{300};
constexpr int pathColumn = 0;
constexpr int sizeColumn = 1;

// The patterns' mixed separators are part of the text.
constexpr char imageFilter[] =
    "All Supported Formats(*.bmp *.gif *.jpg *.pbm *.pcx *.png *.ppm *.tif);;"
    "BMP File(*.bmp);;GIF File(*.gif);;JPEG File(*.jpg;*.jpeg);;PBM File(*.pbm);;"
    "PCX File(*.pcx);;PNG File(*.png);;PPM File(*.ppm);;TIF File(*.tif;*.tiff);;ALL files(*.*)";

/// A directory remembered between runs in setting.ini in the current directory, "." at first.
/// The file is opened anew by each operation and written before it returns.
class RememberedFolder
{
public:
    explicit RememberedFolder(const QString &settingsKey)
        : settings(QStringLiteral("setting.ini"), QSettings::IniFormat)
        , key(settingsKey)
    {
    }

    QString read() const { return settings.value(key, QStringLiteral(".")).toString(); }

    void write(const QString &folder)
    {
        settings.setValue(key, folder);
        settings.sync();
    }

private:
    QSettings settings;
    QString key;
};

/// True when a picture of `size` takes at most 2 GiB as shown, which is 32 bits a pixel. The
/// toolkit's own limit grows with the machine, and no picture is worth more than that.
bool isShowable(QSize size)
{
    constexpr qint64 mostPixels = qint64(2) * 1024 * 1024 * 1024 / 4;
    return qint64(size.width()) * size.height() <= mostPixels;
}

/// The image in the regular file at `path`, its format told by its content; a null pixmap when
/// there is none. Read afresh at each call: the toolkit's own loader answers from a cache in which
/// a file rewritten within the same second keeps its old picture.
QPixmap readPicture(const QString &path)
{
    QFile file;
    if (!openRegularFile(file, path))
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!isShowable(size))
        return {};
    // A quality below 50 lets Qt 6.4 decode a JPEG by faster arithmetic, at full size as well. No
    // pixel of a picture shrunk this much shows it.
    if (size.width() > 8 * previewBox.width() || size.height() > 8 * previewBox.height())
        reader.setQuality(0);
    return QPixmap::fromImageReader(&reader);
}

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
    // A table that sorts moves each row to its place, so there rows are made one by one.
    const bool sorted = table->horizontalHeader()->sortIndicatorSection() >= 0;
    if (!sorted)
        table->setRowCount(row + static_cast<int>(paths.size()));
    // The view lays out new rows as a whole, later; it needs no word of each of their cells.
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
    QTableWidget *table = ui->inputfiletableWidget;
    const auto set = [table, row](int column, const QString &text) {
        if (!text.isEmpty())
            table->setItem(row, column, new QTableWidgetItem(text));
    };
    const QString size = sizeText(QFileInfo(path).size());
    // A sorted table moves the row as soon as the text is there that it sorts by.
    const bool pathMovesRow = table->horizontalHeader()->sortIndicatorSection() == pathColumn;
    if (pathMovesRow)
        set(sizeColumn, size);
    set(pathColumn, path);
    if (!pathMovesRow)
        set(sizeColumn, size);
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
    // All but the first row in one go: the table numbers and lays out its rows anew each time.
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

void Process::setpreview()
{
    previewtimer->start(previewDelay);
}

void Process::dopreview()
{
    try {
        const QString path = inputPath(ui->inputfiletableWidget->currentRow());
        if (path.isEmpty())
            return;
        const QPixmap picture = readPicture(path);
        if (picture.isNull()) {
            showPreview(picture); // the frame keeps its size
            return;
        }
        const QSize size = previewSize(picture.size());
        const QPixmap scaled =
            scaledPixmap(picture, size, Qt::KeepAspectRatio, devicePixelRatioF());
        ui->previewframe->resize(size);
        showPreview(scaled);
    } catch (...) {
        // No image, however broken, may end the program.
    }
}

void Process::setdefaultpreview()
{
    const QSize size(previewBox.width(), previewBox.width());
    const QPixmap picture =
        crispPixmap(QStringLiteral(":/iconoption/icons/whle.png"), size, devicePixelRatioF());
    ui->previewframe->resize(size);
    showPreview(scaledPixmap(picture, size, Qt::IgnoreAspectRatio, devicePixelRatioF()));
}

void Process::showPreview(const QPixmap &picture)
{
    QPalette colours;
    colours.setBrush(ui->previewframe->backgroundRole(), pixmapBrush(picture));
    ui->previewframe->setPalette(colours);
    ui->previewframe->setMask(widgetMask(picture));
    ui->previewframe->setAutoFillBackground(true);
}
