#pragma once

#include <QImage>
#include <QImageIOHandler>

class QImageReader;

/// The transformation that turns the image which `reader` is about to read upright, from EXIF data
/// in JPEG, PNG and WEBP or the tag of a TIFF; none if those are missing or broken. Leaves the
/// reader's device at its beginning.
QImageIOHandler::Transformations uprightTransformation(const QImageReader &reader);

/// `image`, first mirrored and flipped, then rotated, as Qt defines its transformations.
QImage transformed(const QImage &image, QImageIOHandler::Transformations transformation);
