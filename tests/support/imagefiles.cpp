#include "imagefiles.h"

#include <QBuffer>
#include <QImageWriter>
#include <QTemporaryFile>
#include <QtEndian>

#include <tiffio.h>
#include <zlib.h>

namespace imagefiles {

namespace {

constexpr quint32 rationalBase = 1000;

QByteArray number(quint64 value, int size, bool bigEndian)
{
    QByteArray bytes;
    for (int place = 0; place < size; ++place) {
        const int shift = 8 * (bigEndian ? size - 1 - place : place);
        bytes.append(static_cast<char>(value >> shift & 0xFF));
    }
    return bytes;
}

// One directory of an EXIF block whose values stand right behind it.
QByteArray directory(const QList<std::pair<int, double>> &fields, quint32 offset, bool bigEndian,
                     bool hasNext)
{
    constexpr quint32 entrySize = 12;
    const quint32 end = offset + 2 + entrySize * static_cast<quint32>(fields.size()) + 4;
    QByteArray entries = number(static_cast<quint64>(fields.size()), 2, bigEndian);
    QByteArray values;
    for (const auto &[tag, value] : fields) {
        const bool isRational = tag == 0x011A || tag == 0x011B;
        entries += number(static_cast<quint64>(tag), 2, bigEndian) +
                   number(isRational ? 5 : 3, 2, bigEndian) + number(1, 4, bigEndian);
        if (isRational) {
            entries += number(end + static_cast<quint32>(values.size()), 4, bigEndian);
            values += number(static_cast<quint64>(qRound64(value * rationalBase)), 4, bigEndian) +
                      number(rationalBase, 4, bigEndian);
        } else {
            entries += number(static_cast<quint64>(value), 2, bigEndian) + number(0, 2, bigEndian);
        }
    }
    entries += number(hasNext ? end + static_cast<quint32>(values.size()) : 0, 4, bigEndian);
    return entries + values;
}

} // namespace

QByteArray big16(quint32 value)
{
    return number(value, 2, true);
}

QByteArray big32(quint32 value)
{
    return number(value, 4, true);
}

QImage picture(bool colour, QSize size)
{
    QImage image(size, colour ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const QRgb grey = qRgb(x * 5 % 256, x * 5 % 256, x * 5 % 256);
            image.setPixel(x, y, colour ? qRgb(x * 6 % 256, y * 8 % 256, (x + y) * 3 % 256) : grey);
        }
    return image;
}

QByteArray jpegBody(bool colour, bool progressive, QSize size)
{
    QBuffer file;
    QImageWriter writer(&file, "jpeg");
    writer.setQuality(90);
    writer.setProgressiveScanWrite(progressive);
    if (!writer.write(picture(colour, size)))
        qFatal("Qt writes no JPEG");
    QByteArray bytes = file.data().mid(2);
    while (bytes.at(1) >= '\xE0' && bytes.at(1) < '\xF0')
        bytes = bytes.mid(2 + qFromBigEndian<quint16>(bytes.constData() + 2));
    return bytes;
}

QByteArray jpeg(const QList<QByteArray> &segments, const QByteArray &body)
{
    QByteArray file("\xFF\xD8");
    for (const QByteArray &segment : segments)
        file += segment;
    return file + body;
}

QByteArray segment(int marker, const QByteArray &payload)
{
    return QByteArray(1, '\xFF') + static_cast<char>(marker) +
           big16(static_cast<quint32>(payload.size()) + 2) + payload;
}

QByteArray jfif(int unit, quint32 x, quint32 y, const QByteArray &thumbnail)
{
    return segment(0xE0, QByteArray("JFIF\0\1\1", 7) + static_cast<char>(unit) + big16(x) +
                             big16(y) + static_cast<char>(thumbnail.isEmpty() ? 0 : 1) +
                             static_cast<char>(thumbnail.size() / 3) + thumbnail);
}

QByteArray adobe(int transform)
{
    return segment(0xEE, QByteArray("Adobe\0\x64\0\0\0\0", 11) + static_cast<char>(transform));
}

QByteArray xmp(const QByteArray &name, const QByteArray &value)
{
    return segment(0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) +
                             "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                             "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                             "<rdf:Description rdf:about='' "
                             "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' "
                             "xmlns:exif='http://ns.adobe.com/exif/1.0/'><" +
                             name + ">" + value + "</" + name +
                             "></rdf:Description></rdf:RDF></x:xmpmeta>");
}

QByteArray photoshop(double x, double y, int unit, const QByteArray &iptc)
{
    constexpr double fixedPoint = 65536;
    const QByteArray unitAndShown = big16(static_cast<quint32>(unit)) + big16(1);
    const QByteArray resolution = big32(static_cast<quint32>(x * fixedPoint)) + unitAndShown +
                                  big32(static_cast<quint32>(y * fixedPoint)) + unitAndShown;
    return segment(0xED, QByteArray("Photoshop 3.0\0", 14) + "8BIM\x04\x04" + big16(0) +
                             big32(static_cast<quint32>(iptc.size())) + iptc +
                             QByteArray(iptc.size() % 2, '\0') + "8BIM\x03\xED" + big16(0) +
                             big32(static_cast<quint32>(resolution.size())) + resolution);
}

QByteArray exifBlock(const ExifFields &fields)
{
    QList<std::pair<int, double>> first;
    if (fields.orientation >= 0)
        first.append({0x0112, fields.orientation});
    if (fields.x >= 0)
        first.append({0x011A, fields.x});
    if (fields.y >= 0)
        first.append({0x011B, fields.y});
    if (fields.unit >= 0)
        first.append({0x0128, fields.unit});
    const bool hasThumbnail = fields.thumbnailX >= 0;
    QByteArray block = fields.bigEndian ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4);
    block += number(8, 4, fields.bigEndian);
    block += directory(first, 8, fields.bigEndian, hasThumbnail);
    if (hasThumbnail)
        block += directory({{0x011A, fields.thumbnailX}, {0x011B, fields.thumbnailX}, {0x0128, 2}},
                           static_cast<quint32>(block.size()), fields.bigEndian, false);
    return block;
}

QByteArray exif(const ExifFields &fields)
{
    return segment(0xE1, QByteArray("Exif\0\0", 6) + exifBlock(fields));
}

QByteArray profile(bool colour)
{
    // ICC.1:2010: header, one tag table, a description of ASCII text, white, curves, matrix.
    struct Tag
    {
        const char *name;
        QByteArray value;
    };
    const auto xyz = [](quint32 x, quint32 y, quint32 z) {
        return QByteArray("XYZ \0\0\0\0", 8) + big32(x) + big32(y) + big32(z);
    };
    const QByteArray curve = QByteArray("curv\0\0\0\0", 8) + big32(1) + big16(0x0233) + big16(0);
    const QByteArray text = QByteArray("text\0\0\0\0", 8) + QByteArray("none\0\0\0\0", 8);
    const QByteArray description =
        QByteArray("desc\0\0\0\0", 8) + big32(5) + QByteArray("test\0", 5) + QByteArray(79, '\0');
    QList<Tag> tags = {
        {"desc", description}, {"cprt", text}, {"wtpt", xyz(0xF6D6, 0x10000, 0xD32D)}};
    if (colour)
        tags += {{"rXYZ", xyz(0x6FA2, 0x38F5, 0x0390)},
                 {"gXYZ", xyz(0x6299, 0xB785, 0x18DA)},
                 {"bXYZ", xyz(0x24A0, 0x0F84, 0xB6CF)},
                 {"rTRC", curve},
                 {"gTRC", curve},
                 {"bTRC", curve}};
    else
        tags += {{"kTRC", curve}};
    QByteArray table = big32(static_cast<quint32>(tags.size()));
    QByteArray values;
    const auto start = static_cast<quint32>(128 + 4 + 12 * tags.size());
    for (const Tag &tag : tags) {
        table += tag.name + big32(start + static_cast<quint32>(values.size())) +
                 big32(static_cast<quint32>(tag.value.size()));
        values += tag.value;
        values.append((4 - values.size() % 4) % 4, '\0');
    }
    const QByteArray rest = QByteArray("none\2\x10\0\0mntr", 12) + (colour ? "RGB " : "GRAY") +
                            "XYZ " + QByteArray(12, '\0') + "acsp" + QByteArray(28, '\0') +
                            big32(0xF6D6) + big32(0x10000) + big32(0xD32D) + QByteArray(48, '\0');
    return big32(start + static_cast<quint32>(values.size())) + rest + table + values;
}

QList<QByteArray> profileSegments(const QByteArray &profile, int parts)
{
    QList<QByteArray> segments;
    const qsizetype size = profile.size() / parts + 1;
    for (int part = 0; part < parts; ++part)
        segments += segment(0xE2, QByteArray("ICC_PROFILE\0", 12) + static_cast<char>(part + 1) +
                                      static_cast<char>(parts) + profile.mid(part * size, size));
    return segments;
}

QByteArray chunk(const char *type, const QByteArray &content)
{
    const QByteArray summed = type + content;
    const auto sum = crc32(0, reinterpret_cast<const Bytef *>(summed.constData()),
                           static_cast<uInt>(summed.size()));
    return big32(static_cast<quint32>(content.size())) + summed + big32(static_cast<quint32>(sum));
}

QByteArray physical(quint32 x, quint32 y, int unit)
{
    return chunk("pHYs", big32(x) + big32(y) + static_cast<char>(unit));
}

QByteArray pngRows(const PngForm &form)
{
    constexpr int samplesOf[] = {1, 0, 3, 1, 2, 0, 4};
    const int bits = form.size.width() * samplesOf[form.colourType] * form.depth;
    QByteArray rows;
    for (int y = 0; y < form.size.height(); ++y) {
        rows += static_cast<char>(y % 5);
        for (int x = 0; x < (bits + 7) / 8; ++x)
            rows += static_cast<char>(x * 7 + y * 3);
    }
    return rows;
}

QByteArray png(const PngForm &form)
{
    // Interlaced: one pass holds all of an image that is one pixel.
    const QByteArray data = qCompress(pngRows(form)).mid(4);
    QByteArray file("\x89PNG\r\n\x1A\n");
    file += chunk("IHDR", big32(static_cast<quint32>(form.size.width())) +
                              big32(static_cast<quint32>(form.size.height())) +
                              static_cast<char>(form.depth) + static_cast<char>(form.colourType) +
                              QByteArray(2, '\0') + static_cast<char>(form.interlaced ? 1 : 0));
    if (form.colourType == 3) {
        QByteArray palette;
        for (int entry = 0; entry < 1 << form.depth; ++entry)
            palette += QByteArray(1, static_cast<char>(entry * 37)) +
                       static_cast<char>(255 - entry * 11) + static_cast<char>(entry * 5);
        file += chunk("PLTE", palette);
    }
    for (const QByteArray &one : form.before)
        file += one;
    for (qsizetype at = 0; at < data.size(); at += form.piece)
        file += chunk("IDAT", data.mid(at, form.piece));
    for (const QByteArray &one : form.after)
        file += one;
    return file + chunk("IEND", {});
}

QByteArray tiff(const TiffForm &form)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("no temporary file");
    const QByteArray mode = QByteArray("w") + (form.bigEndian ? "b" : "l") + (form.big ? "8" : "");
    TIFF *tiff = TIFFOpen(file.fileName().toLocal8Bit().constData(), mode.constData());
    for (int page = 0; page < form.pages; ++page) {
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, form.size.width());
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, form.size.height());
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, form.rowsPerStrip);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 1);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, form.compression);
        TIFFSetField(tiff, TIFFTAG_FILLORDER, form.fillOrder);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC,
                     form.zeroIsBlack ? PHOTOMETRIC_MINISBLACK : PHOTOMETRIC_MINISWHITE);
        if (form.x >= 0)
            TIFFSetField(tiff, TIFFTAG_XRESOLUTION, form.x);
        if (form.y >= 0)
            TIFFSetField(tiff, TIFFTAG_YRESOLUTION, form.y);
        if (form.unit >= 0)
            TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, form.unit);
        if (form.orientation >= 0)
            TIFFSetField(tiff, TIFFTAG_ORIENTATION, form.orientation);
        if (form.subfileType >= 0)
            TIFFSetField(tiff, TIFFTAG_SUBFILETYPE, form.subfileType);
        if (form.group4Options >= 0)
            TIFFSetField(tiff, TIFFTAG_GROUP4OPTIONS, form.group4Options);
        if (form.description)
            TIFFSetField(tiff, TIFFTAG_IMAGEDESCRIPTION, form.description);
        if (form.pageName)
            TIFFSetField(tiff, TIFFTAG_PAGENAME, form.pageName);
        QByteArray row((form.size.width() + 7) / 8, '\0');
        for (int y = 0; y < form.size.height(); ++y) {
            for (qsizetype x = 0; x < row.size(); ++x)
                row[x] =
                    static_cast<char>((x * 31 + qsizetype{y} * 7 + qsizetype{page} * 60) & 0xFC);
            TIFFWriteScanline(tiff, row.data(), static_cast<uint32_t>(y), 0);
        }
        TIFFWriteDirectory(tiff);
    }
    TIFFClose(tiff);
    return file.readAll();
}

QByteArray tiledTiff()
{
    constexpr uint32_t side = 200;
    constexpr uint32_t tileSide = 112;
    QTemporaryFile file;
    if (!file.open())
        qFatal("no temporary file");
    TIFF *tiff = TIFFOpen(file.fileName().toLocal8Bit().constData(), "wl");
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, side);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, side);
    TIFFSetField(tiff, TIFFTAG_TILEWIDTH, tileSide);
    TIFFSetField(tiff, TIFFTAG_TILELENGTH, tileSide);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
    QByteArray pixels(qsizetype{tileSide} * tileSide, '\x55');
    for (uint32_t tile = 0; tile < 4; ++tile)
        TIFFWriteEncodedTile(tiff, tile, pixels.data(), pixels.size());
    TIFFClose(tiff);
    return file.readAll();
}

} // namespace imagefiles
