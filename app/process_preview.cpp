// The preview of the list's current row.

#include "process.h"

#include "pictures.h"
#include "previewbox.h"
#include "ui_process.h"

#include <QFrame>
#include <QTableWidget>
#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds previewDelay{300};

/// Keeps the upper corner of the frame that is next to its label.
void resizeFrame(QFrame &frame, QSize size)
{
    QRect place(frame.pos(), size);
    if (frame.isRightToLeft())
        place.moveRight(frame.geometry().right());
    frame.setGeometry(place);
}

} // namespace

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
        const std::optional<Preview> shown = preview.of(path, devicePixelRatioF());
        if (shown)
            resizeFrame(*ui->previewframe, shown->size);
        showPicture(*ui->previewframe, shown ? shown->picture : QPixmap());
    } catch (...) {
        // No image, however broken, may end the program.
    }
}

void Process::setdefaultpreview()
{
    const QSize size(previewBox.width(), previewBox.width());
    const QPixmap picture =
        crispPixmap(QStringLiteral(":/iconoption/icons/whle.png"), size, devicePixelRatioF());
    resizeFrame(*ui->previewframe, size);
    showPicture(*ui->previewframe, scaledPicture(picture.toImage(), size, devicePixelRatioF()));
}
