#pragma once

#include <QImage>
#include <QImageIOHandler>

class QImageReader;

/// How the image that `reader` is about to read has to be turned to stand upright, as its file
/// says: EXIF data in JPEG, PNG and WEBP, the tag of a TIFF. No turn where those are missing or
/// broken. Leaves the reader's device at its beginning.
QImageIOHandler::Transformations uprightTransformation(const QImageReader &reader);

/// `image`, mirrored and flipped first and rotated then, as Qt's transformations are meant.
QImage transformed(const QImage &image, QImageIOHandler::Transformations transformation);
