#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSize>

/// Image files put together piece by piece, so that each piece can be what it should not be.
namespace imagefiles {

QByteArray big16(quint32 number);
QByteArray big32(quint32 number);

/// A gradient with fine structure, in colour or grey.
QImage picture(bool colour, QSize size = {40, 30});

/// A JPEG file of that picture from its first table on, without any APPn segment or SOI.
QByteArray jpegBody(bool colour, bool progressive = false, QSize size = {40, 30});
/// The file: start marker, segments, body.
QByteArray jpeg(const QList<QByteArray> &segments, const QByteArray &body);
QByteArray segment(int marker, const QByteArray &payload);
QByteArray jfif(int unit, quint32 x, quint32 y, const QByteArray &thumbnail = {});
QByteArray adobe(int transform);
/// An XMP packet of one field.
QByteArray xmp(const QByteArray &name, const QByteArray &value);
/// With IPTC data before the resolution, as large as `iptc`.
QByteArray photoshop(double x, double y, int unit, const QByteArray &iptc = "iptc");

/// Resolution fields of an EXIF block; a negative number is a missing field.
struct ExifFields
{
    double x = -1;
    double y = -1;
    int unit = -1;
    int orientation = -1;
    bool bigEndian = true;
    /// Of the thumbnail's directory.
    double thumbnailX = -1;
};
QByteArray exifBlock(const ExifFields &fields);
QByteArray exif(const ExifFields &fields);

/// A colour profile with nothing but a proper header and the tags that readers insist on.
QByteArray profile(bool colour);
/// That profile in as many segments.
QList<QByteArray> profileSegments(const QByteArray &profile, int parts);

QByteArray chunk(const char *type, const QByteArray &content);
QByteArray physical(quint32 x, quint32 y, int unit);

struct PngForm
{
    int colourType = 2;
    int depth = 8;
    QSize size = {40, 30};
    bool interlaced = false;
    /// Chunks between the palette and the image data, and after that.
    QList<QByteArray> before = {};
    QList<QByteArray> after = {};
    /// Bytes in each piece of image data.
    int piece = 500;
};
QByteArray png(const PngForm &form);
/// The rows of that image with their filters, before compression.
QByteArray pngRows(const PngForm &form);

struct TiffForm
{
    QSize size = {40, 30};
    int rowsPerStrip = 30;
    int fillOrder = 1;
    bool zeroIsBlack = false;
    /// Negative: not stated.
    double x = -1;
    double y = -1;
    int unit = -1;
    int orientation = -1;
    int compression = 4;
    int pages = 1;
    int subfileType = -1;
    int group4Options = -1;
    const char *pageName = nullptr;
    const char *description = nullptr;
    bool bigEndian = false;
    bool big = false;
};
QByteArray tiff(const TiffForm &form);
/// Grey, not compressed, in four tiles.
QByteArray tiledTiff();

} // namespace imagefiles
