#include "windowcontrols.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QDropEvent>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int pollInterval = 5; // ms
constexpr int quietLooks = 5;

/// True while a child process of this program runs or waits to be reaped.
bool hasChildProcesses()
{
    const QDir threads(QStringLiteral("/proc/self/task"));
    const QStringList ids = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::ranges::any_of(ids, [&threads](const QString &id) {
        QFile children(threads.filePath(id + QStringLiteral("/children")));
        return children.open(QIODevice::ReadOnly) && !children.readAll().isEmpty();
    });
}

} // namespace

void WindowControls::drop(const QList<QUrl> &files)
{
    QMimeData data;
    data.setUrls(files);
    // Qt hands a drop only to a widget that has accepted the drag before.
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &drop);
}

void WindowControls::fill(const char *field, const QString &text) const
{
    find<QLineEdit>(field)->setText(text);
}

void WindowControls::select(const char *box, int index) const
{
    find<QComboBox>(box)->setCurrentIndex(index);
}

void WindowControls::check(const char *box, bool checked) const
{
    find<QCheckBox>(box)->setChecked(checked);
}

void WindowControls::press(const char *button) const
{
    find<QPushButton>(button)->click();
}

QList<ListedFile> WindowControls::listedFiles() const
{
    QList<ListedFile> files;
    const auto *table = find<QTableWidget>("inputfiletableWidget");
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *size = table->item(row, 1);
        files.append({table->item(row, 0)->text(), size ? size->text() : QString()});
    }
    return files;
}

bool WindowControls::waitUntilQuiet(int timeout)
{
    QEventLoop loop; // the program's own kind: QTest's waiting pauses between its looks
    QTimer look;
    // Qt mostly reaps a child in the turn of the event loop that enters the next step of a
    // conversion; under the sanitizers Qt 6.8 does in another thread, some turns before.
    QObject::connect(&look, &QTimer::timeout, &loop, [&loop, quiet = 0]() mutable {
        quiet = hasChildProcesses() ? 0 : quiet + 1;
        if (quiet == quietLooks)
            loop.exit(0);
    });
    look.start(pollInterval);
    QTimer::singleShot(timeout, &loop, [&loop] { loop.exit(1); });
    return loop.exec() == 0;
}

void WindowControls::convertOneByOne() const
{
    QEventLoop loop;
    // A run is over when the progress bar goes back to 0.
    QObject::connect(find<QProgressBar>("progressBar"), &QProgressBar::valueChanged, &loop,
                     [&loop](int value) {
                         if (value == 0)
                             loop.quit();
                     });
    press("runButton");
    loop.exec();
}
