#pragma once

#include <QByteArray>
#include <QtEndian>

// Little-endian TIFF files of the tests, and their fields.

// The place of the field `tag` of the page.
inline qsizetype placeOf(const QByteArray &tiff, quint16 tag, int page = 0)
{
    quint32 directory = qFromLittleEndian<quint32>(tiff.constData() + 4);
    for (;; --page) {
        const qsizetype entries = qFromLittleEndian<quint16>(tiff.constData() + directory);
        for (qsizetype place = directory + 2; place < directory + 2 + 12 * entries; place += 12) {
            if (page == 0 && qFromLittleEndian<quint16>(tiff.constData() + place) == tag)
                return place;
        }
        directory = qFromLittleEndian<quint32>(tiff.constData() + directory + 2 + 12 * entries);
    }
}

inline QByteArray patched(QByteArray file, qsizetype place, quint32 number)
{
    qToLittleEndian(number, file.data() + place);
    return file;
}

inline quint32 numberAt(const QByteArray &file, qsizetype place)
{
    return qFromLittleEndian<quint32>(file.constData() + place);
}

// With another number in the field, which holds just one.
inline QByteArray withField(const QByteArray &tiff, quint16 tag, quint32 number, int page = 0)
{
    return patched(tiff, placeOf(tiff, tag, page) + 8, number);
}

inline quint32 fieldOf(const QByteArray &tiff, quint16 tag, int page = 0)
{
    return numberAt(tiff, placeOf(tiff, tag, page) + 8);
}

inline QByteArray little(quint32 value, int size)
{
    QByteArray bytes;
    for (int byte = 0; byte < size; ++byte)
        bytes += static_cast<char>(value >> (8 * byte));
    return bytes;
}

// Directories that share the tables of their strips.
inline QByteArray sharingTiff(quint32 directories, quint32 strips)
{
    const quint32 first = 8 + 4 * strips;
    const auto field = [](quint32 tag, quint32 count, quint32 value) {
        return little(tag, 2) + little(4, 2) + little(count, 4) + little(value, 4);
    };
    const QByteArray fields = field(256, 1, 40) + field(257, 1, strips) + field(273, strips, 8) +
                              field(278, 1, 1) + field(279, strips, 8);
    const auto size = static_cast<quint32>(2 + fields.size() + 4);
    QByteArray file =
        QByteArray("II*\0", 4) + little(first, 4) + QByteArray(qsizetype{4} * strips, '\0');
    for (quint32 directory = 1; directory <= directories; ++directory)
        file += little(5, 2) + fields +
                little(directory == directories ? 0 : first + directory * size, 4);
    return file;
}
