#include "previewpicture.h"

#include "imageformat.h"
#include "orientation.h"
#include "previewbox.h"
#include "quietdecoders.h"

#include <QBitmap>
#include <QImageReader>
#include <QWidget>
#include <QtMath>
#include <QtPlugin>

#include <algorithm>
#include <chrono>

#include <unistd.h>

Q_IMPORT_PLUGIN(PcxPlugin)

namespace {

constexpr qint64 mebibyte = qint64(1024) * 1024;
constexpr qint64 maxShownBytes = 2048 * mebibyte;
constexpr int bytesPerShownPixel = 4;
constexpr int partOfMemory = 4;
// A JPEG decoded at an eighth, a quarter, ... of its size that has this many times the width shown
// looks like one decoded whole: a PSNR of 48 dB or more for photos (Qt 6.4). At twice the width
// edges move visibly.
constexpr int decodedPerShown = 4;

/// Qt's own limit grows with the machine's memory; this one does not.
bool isShowable(QSize size)
{
    return qint64(size.width()) * size.height() <= maxShownBytes / bytesPerShownPixel;
}

/// False if another change might leave the state the same: some file systems count time in steps of
/// two seconds.
bool isSettled(const FileState &state)
{
    using namespace std::chrono;
    const nanoseconds age = system_clock::now().time_since_epoch() -
                            nanoseconds(std::max(state.modified, state.changed));
    return age > 2s;
}

QSize devicePixels(QSize size, qreal ratio)
{
    // Rounded up, as a background that is too small is repeated at the opposite edge.
    return {qCeil(size.width() * ratio), qCeil(size.height() * ratio)};
}

std::optional<Preview> decode(RegularFile &file, qreal ratio)
{
    const QuietDecoders quiet;
    QImageReader reader(&file, imageFormat(file));
    reader.setAutoDetectImageFormat(false);
    const auto transformation = uprightTransformation(reader);
    const bool sidesSwap = transformation.testFlag(QImageIOHandler::TransformationRotate90);
    const auto upright = [sidesSwap](QSize size) { return sidesSwap ? size.transposed() : size; };

    const QSize stored = reader.size();
    if (!isShowable(stored))
        return {};
    if (!stored.isEmpty() && reader.supportsOption(QImageIOHandler::ScaledSize)) {
        const QSize enough = decodedPerShown * devicePixels(previewSize(upright(stored)), ratio);
        if (!enough.isEmpty() && enough.width() < upright(stored).width())
            reader.setScaledSize(upright(enough));
    }
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    const QSize size = previewSize(upright(stored.isEmpty() ? image.size() : stored));
    return Preview{size, scaledPicture(transformed(image, transformation), size, ratio)};
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

std::optional<Preview> PreviewPicture::of(const QString &path, qreal ratio)
{
    const std::optional<FileState> state = regularFileState(path);
    if (!state)
        return {};
    const Source source{path, ratio, *state};
    if (m_source == source)
        return m_preview;
    m_source.reset();
    // Later changes give the file another state.
    const bool settled = isSettled(*state);
    RegularFile file(path);
    m_preview = file.isOpen() ? decode(file, ratio) : std::nullopt;
    if (settled)
        m_source = source;
    return m_preview;
}

QPixmap scaledPicture(const QImage &picture, QSize size, qreal ratio)
{
    QPixmap scaled = QPixmap::fromImage(
        picture.scaled(devicePixels(size, ratio), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
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
