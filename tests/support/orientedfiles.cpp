#include "orientedfiles.h"

#include "imagefiles.h"

#include <QBuffer>
#include <QImageWriter>

using namespace imagefiles;

namespace {

QImage quarters()
{
    QImage image(80, 40, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool right = x >= image.width() / 2;
            image.setPixelColor(x, y,
                                y < image.height() / 2 ? (right ? Qt::green : Qt::red)
                                                       : (right ? Qt::yellow : Qt::blue));
        }
    }
    return image;
}

QByteArray encoded(const char *format)
{
    QBuffer file;
    QImageWriter writer(&file, format);
    writer.setQuality(100); // without loss, for WEBP
    if (QByteArray(format) == "tiff")
        writer.setTransformation(QImageIOHandler::TransformationMirror); // stored as 2
    if (!writer.write(quarters()))
        qFatal("cannot write the picture");
    return file.data();
}

QByteArray little(quint32 number, int bytes)
{
    QByteArray result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>(number >> (8 * i));
    return result;
}

char letterOf(QColor colour)
{
    return colour.red() > 128 ? (colour.green() > 128 ? 'Y' : 'R')
                              : (colour.green() > 128 ? 'G' : 'B');
}

} // namespace

namespace orientedfiles {

QByteArray jpegWith(const QByteArray &exif)
{
    constexpr int app1 = 0xe1;
    return encoded("jpeg").insert(2, segment(app1, QByteArray("Exif\0\0", 6) + exif));
}

QByteArray pngWith(const QByteArray &exif)
{
    constexpr qsizetype firstChunkEnd = 33;
    return encoded("png").insert(firstChunkEnd, chunk("eXIf", exif));
}

QByteArray pngWithLast(const QByteArray &exif)
{
    constexpr qsizetype lastChunkSize = 12;
    QByteArray file = encoded("png");
    return file.insert(file.size() - lastChunkSize, chunk("eXIf", exif));
}

QByteArray webpWith(const QByteArray &exif)
{
    const auto chunk = [](const char *type, const QByteArray &content) {
        return type + little(static_cast<quint32>(content.size()), 4) + content +
               QByteArray(content.size() % 2, '\0');
    };
    constexpr quint32 hasExif = 8;
    const QImage image = quarters();
    const QByteArray extended = little(hasExif, 4) +
                                little(static_cast<quint32>(image.width()) - 1, 3) +
                                little(static_cast<quint32>(image.height()) - 1, 3);
    constexpr qsizetype imageStart = 12;
    return chunk("RIFF", "WEBP" + chunk("VP8X", extended) + encoded("webp").mid(imageStart) +
                             chunk("EXIF", exif));
}

QByteArray webpWithPrefix(const QByteArray &exif)
{
    return webpWith(QByteArray("Exif\0\0", 6) + exif);
}

QByteArray tiffWith(int orientation)
{
    const auto entry = [](quint32 value) {
        return little(0x112, 2) + little(3, 2) + little(1, 4) + little(value, 4);
    };
    QByteArray file = encoded("tiff");
    if (file.count(entry(2)) != 1)
        qFatal("the picture states no orientation");
    return file.replace(entry(2), entry(static_cast<quint32>(orientation)));
}

QByteArray quarterColours(const QImage &image)
{
    QByteArray colours;
    for (const double y : {0.25, 0.75}) {
        for (const double x : {0.25, 0.75})
            colours += letterOf(image.pixelColor(static_cast<int>(x * image.width()),
                                                 static_cast<int>(y * image.height())));
    }
    return colours;
}

} // namespace orientedfiles
