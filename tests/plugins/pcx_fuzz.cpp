#include "fuzztarget.h"
#include "pcxhandler.h"
#include "pipe.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QVariant>

#include <cstdlib>

namespace {

constexpr int allowedMegabytes = 1;

void demand(bool holds)
{
    if (!holds)
        std::abort();
}

/// Every index must have a colour; the conversion looks each of them up.
void demandWholePicture(const QImage &picture, QSize promised)
{
    demand(picture.size() == promised);
    if (picture.format() == QImage::Format_Indexed8)
        demand(picture.convertToFormat(QImage::Format_ARGB32).size() == promised);
}

void readFrom(QIODevice &device)
{
    demand(device.open(QIODevice::ReadOnly));
    PcxHandler handler;
    handler.setDevice(&device);
    const bool readable = handler.canRead();
    const QSize promised = handler.option(QImageIOHandler::Size).toSize();
    demand(readable == promised.isValid());
    QImage picture;
    if (handler.read(&picture))
        demandWholePicture(picture, promised);
    else
        demand(picture.isNull());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QImageReader::setAllocationLimit(allowedMegabytes);
    QByteArray file =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QBuffer seekable(&file);
    readFrom(seekable);
    Pipe pipe(file);
    readFrom(pipe);
    return 0;
}
