#pragma once

#include <QByteArray>
#include <QImage>

/// Files of one wide picture with a colour of its own in each quarter: red, green, below blue,
/// yellow. Each states how the picture lies, in EXIF data or in the tag of TIFF.
namespace orientedfiles {

QByteArray jpegWith(const QByteArray &exif);
QByteArray pngWith(const QByteArray &exif);
/// With the EXIF data behind the image.
QByteArray pngWithLast(const QByteArray &exif);
QByteArray webpWith(const QByteArray &exif);
/// With the prefix that EXIF data have in a JPEG.
QByteArray webpWithPrefix(const QByteArray &exif);
QByteArray tiffWith(int orientation);

/// The first letters of the quarters' colours: upper left and right, lower left and right.
QByteArray quarterColours(const QImage &image);

} // namespace orientedfiles
