#include "orientation.h"

#include <QDataStream>
#include <QIODevice>
#include <QImageReader>
#include <QTransform>
#include <QtEndian>

#include <array>

namespace {

constexpr qint64 headerBytes = 8;      // of a chunk, in PNG and WEBP
constexpr qint64 maxExifBytes = 65536; // what a JPEG can hold

QByteArray exifOfPng(QIODevice &file)
{
    constexpr qint64 checksumBytes = 4;
    for (qint64 place = 8; file.seek(place);) {
        const QByteArray header = file.read(headerBytes);
        if (header.size() < headerBytes)
            break;
        const qint64 size = qFromBigEndian<quint32>(header.constData());
        if (header.endsWith("eXIf"))
            return file.read(qMin(size, maxExifBytes));
        place += headerBytes + size + checksumBytes;
    }
    return {};
}

QByteArray exifOfWebp(QIODevice &file)
{
    for (qint64 place = 12; file.seek(place);) {
        const QByteArray header = file.read(headerBytes);
        if (header.size() < headerBytes)
            break;
        const qint64 size = qFromLittleEndian<quint32>(header.constData() + 4);
        if (header.startsWith("EXIF"))
            return file.read(qMin(size, maxExifBytes));
        place += headerBytes + size + size % 2;
    }
    return {};
}

/// The orientation in EXIF data, from 1 (upright) to 8; 1 if there is none or it is broken.
std::size_t orientationIn(QByteArray exif)
{
    constexpr quint16 orientationTag = 0x112;
    constexpr quint16 shortType = 3;
    const QByteArray jpegPrefix("Exif\0\0", 6); // some programs write it into a WEBP too
    if (exif.startsWith(jpegPrefix))
        exif.remove(0, jpegPrefix.size());
    QDataStream data(exif);
    if (exif.startsWith("II"))
        data.setByteOrder(QDataStream::LittleEndian);
    else if (!exif.startsWith("MM"))
        return 1;
    quint32 directory = 0;
    quint16 entries = 0;
    data.skipRawData(4);
    data >> directory;
    if (directory >= exif.size())
        return 1;
    data.device()->seek(directory);
    for (data >> entries; entries > 0 && data.status() == QDataStream::Ok; --entries) {
        quint16 tag = 0;
        quint16 type = 0;
        quint32 count = 0;
        quint16 value = 0;
        quint16 rest = 0;
        data >> tag >> type >> count >> value >> rest;
        if (tag == orientationTag)
            return type == shortType && value >= 1 && value <= 8 ? value : 1;
    }
    return 1;
}

} // namespace

QImageIOHandler::Transformations uprightTransformation(const QImageReader &reader)
{
    // Qt 6.4 and 6.8 find the orientation in JPEG and TIFF files alone.
    if (reader.supportsOption(QImageIOHandler::ImageTransformation))
        return reader.transformation();
    using T = QImageIOHandler;
    constexpr std::array byOrientation{
        T::TransformationNone,
        T::TransformationMirror,
        T::TransformationRotate180,
        T::TransformationFlip,
        T::TransformationFlipAndRotate90,
        T::TransformationRotate90,
        T::TransformationMirrorAndRotate90,
        T::TransformationRotate270,
    };
    QIODevice &file = *reader.device();
    QByteArray exif;
    if (reader.format() == "png")
        exif = exifOfPng(file);
    else if (reader.format() == "webp")
        exif = exifOfWebp(file);
    file.seek(0);
    return byOrientation[orientationIn(exif) - 1];
}

QImage transformed(const QImage &image, QImageIOHandler::Transformations transformation)
{
    QImage mirrored = image.mirrored(transformation.testFlag(QImageIOHandler::TransformationMirror),
                                     transformation.testFlag(QImageIOHandler::TransformationFlip));
    if (!transformation.testFlag(QImageIOHandler::TransformationRotate90))
        return mirrored;
    return mirrored.transformed(QTransform().rotate(90));
}
