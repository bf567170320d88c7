#pragma once

#include <QByteArray>

/// Builds a PCX file field by field; what is not set makes a valid one of a single pixel.
struct PcxFile
{
    int version = 5;
    int encoding = 1;
    int bits = 8;
    int planes = 3;
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    int bytesPerLine = 2;
    QByteArray data = QByteArray::fromHex("010002000300"); ///< everything after the header

    QByteArray bytes() const
    {
        QByteArray file(128, '\0');
        file[0] = '\x0A';
        file[1] = static_cast<char>(version);
        file[2] = static_cast<char>(encoding);
        file[3] = static_cast<char>(bits);
        file[65] = static_cast<char>(planes);
        int at = 4;
        for (const int value : {left, top, right, bottom}) {
            put(file, at, value);
            at += 2;
        }
        put(file, 66, bytesPerLine);
        // The header's palette: colour n is 0x01n0n0 for n from 0 to 15.
        for (int colour = 0; colour < 16; ++colour)
            file.replace(16 + 3 * colour, 3,
                         QByteArray("\x01").append(2, static_cast<char>(colour * 16)));
        return file + data;
    }

private:
    static void put(QByteArray &file, int at, int value)
    {
        file[at] = static_cast<char>(value);
        file[at + 1] = static_cast<char>(value >> 8);
    }
};
