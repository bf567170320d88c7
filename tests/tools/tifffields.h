#pragma once

#include <QByteArray>
#include <QtEndian>

// Fields of a little-endian TIFF file of a test.

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
