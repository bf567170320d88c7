#include "pcxhandler.h"

#include "pcxdecoder.h"

#include <QIODevice>
#include <QImage>
#include <QSize>
#include <QVariant>

namespace {

pcx::Bytes bytesOf(const QByteArray &data)
{
    return {reinterpret_cast<const std::uint8_t *>(data.constData()),
            static_cast<std::size_t>(data.size())};
}

std::optional<pcx::Header> peekHeader(QIODevice *device)
{
    return device ? pcx::parseHeader(bytesOf(device->peek(pcx::headerSize))) : std::nullopt;
}

QSize sizeOf(const pcx::Header &header)
{
    return {header.width, header.height};
}

QImage::Format formatOf(const pcx::Header &header)
{
    if (!header.hasComponents())
        return QImage::Format_Indexed8;
    return header.planes == 4 ? QImage::Format_ARGB32 : QImage::Format_RGB32;
}

/// Whether the file is too short for its image, checked before memory is allocated. Only a device
/// with a known size can be checked.
bool isTooShort(const pcx::Header &header, const QIODevice &device)
{
    return !device.isSequential() &&
           static_cast<quint64>(device.bytesAvailable()) < header.smallestDataSize();
}

std::size_t readInto(QIODevice &device, std::span<std::uint8_t> bytes)
{
    const qint64 count =
        device.read(reinterpret_cast<char *>(bytes.data()), static_cast<qint64>(bytes.size()));
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

bool readLines(const pcx::Header &header, pcx::LineDecoder &lines, QImage &decoded)
{
    std::vector<std::uint8_t> line(header.lineSize());
    const auto width = static_cast<std::size_t>(header.width);
    for (int y = 0; y < header.height; ++y) {
        if (!lines.next(line))
            return false;
        uchar *pixels = decoded.scanLine(y);
        if (header.hasComponents())
            pcx::unpackColours(header, line, {reinterpret_cast<pcx::Colour *>(pixels), width});
        else
            pcx::unpackIndexes(header, line, {pixels, width});
    }
    return !lines.hasRunLeft();
}

/// Gives an indexed image its colours; false if the file ends before them.
bool setColours(const pcx::Header &header, pcx::LineDecoder &lines, QImage &decoded)
{
    std::vector<std::uint8_t> palette(header.wantsEndPalette() ? pcx::endPaletteSize : 0);
    if (lines.takeRaw(palette) < palette.size())
        return false;
    const std::vector<pcx::Colour> colours = pcx::colourTable(header, palette);
    decoded.setColorTable({colours.begin(), colours.end()});
    return true;
}

} // namespace

bool PcxHandler::canRead(QIODevice *device)
{
    return peekHeader(device).has_value();
}

bool PcxHandler::canRead() const
{
    if (!canRead(device()))
        return false;
    setFormat("pcx");
    return true;
}

bool PcxHandler::read(QImage *image)
{
    const std::optional<pcx::Header> header = peekHeader(device());
    if (!header)
        return false;
    QIODevice &file = *device();
    file.skip(pcx::headerSize);
    QImage decoded;
    if (isTooShort(*header, file) || !allocateImage(sizeOf(*header), formatOf(*header), &decoded))
        return false;

    pcx::LineDecoder lines(
        *header, [&file](std::span<std::uint8_t> bytes) { return readInto(file, bytes); });
    if (!readLines(*header, lines, decoded) ||
        (!header->hasComponents() && !setColours(*header, lines, decoded)))
        return false;
    *image = decoded;
    return true;
}

QVariant PcxHandler::option(ImageOption option) const
{
    const std::optional<pcx::Header> header = peekHeader(device());
    return option == Size && header ? QVariant(sizeOf(*header)) : QVariant();
}

bool PcxHandler::supportsOption(ImageOption option) const
{
    return option == Size;
}
