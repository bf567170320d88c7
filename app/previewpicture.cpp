#include "previewpicture.h"

#include "previewbox.h"
#include "regularfile.h"

#include <QBitmap>
#include <QFile>
#include <QImageReader>
#include <QWidget>
#include <QtPlugin>

#include <unistd.h>

Q_IMPORT_PLUGIN(PcxPlugin)

namespace {

constexpr qint64 mebibyte = qint64(1024) * 1024;
constexpr qint64 mostShownBytes = 2048 * mebibyte;
constexpr int bytesPerShownPixel = 4;
constexpr int partOfMemory = 4;

/// Qt's own limit grows with the machine, and no picture is worth more than ours.
bool isShowable(QSize size)
{
    return qint64(size.width()) * size.height() <= mostShownBytes / bytesPerShownPixel;
}

/// The opaque places of `picture` in device-independent pixels; null when it is opaque all over.
QBitmap widgetMask(const QPixmap &picture)
{
    const QBitmap mask = picture.mask();
    if (mask.isNull() || qFuzzyCompare(picture.devicePixelRatio(), 1.0))
        return mask;
    return QBitmap::fromPixmap(mask.scaled(picture.deviceIndependentSize().toSize()));
}

} // namespace

void limitDecodedPictures()
{
    const auto bytes = static_cast<qint64>(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    QImageReader::setAllocationLimit(static_cast<int>(bytes / partOfMemory / mebibyte));
}

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

QPixmap scaledPicture(const QPixmap &picture, QSize size, Qt::AspectRatioMode mode, qreal ratio)
{
    QPixmap scaled =
        picture.scaled((QSizeF(size) * ratio).toSize(), mode, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    return scaled;
}

void showPicture(QWidget &frame, const QPixmap &picture)
{
    QPalette colours;
    colours.setBrush(frame.backgroundRole(), picture);
    frame.setPalette(colours);
    frame.setMask(widgetMask(picture));
    frame.setAutoFillBackground(true);
}
