#pragma once

#include <QBitmap>
#include <QBrush>
#include <QPixmap>
#include <QSize>

/// `picture` scaled smoothly to `size` (device-independent pixels) as `mode` says, with as many
/// device pixels as a screen of `ratio` device pixels per pixel shows.
QPixmap scaledPixmap(const QPixmap &picture, QSize size, Qt::AspectRatioMode mode, qreal ratio);

/// The picture at `path`, decoded and scaled smoothly to exactly `size` (device-independent pixels)
/// in one go, which for a JPEG is a fraction of the work of both. Null when there is none.
QPixmap readScaled(const QString &path, QSize size, qreal ratio);

/// The PNG picture at `path` at `size` device-independent pixels, taken from the file or its "@2x"
/// twin, whichever suits a screen of `ratio` device pixels per pixel best; never larger than that
/// source. Null when there is no such picture. Decoded once: the picture is one of the program's
/// own.
QPixmap crispPixmap(const QString &path, QSize size, qreal ratio);

/// Texture brush that paints `picture` at its device-independent size.
QBrush pixmapBrush(const QPixmap &picture);

/// The opaque places of `picture` in device-independent pixels; null when it is opaque all over.
QBitmap widgetMask(const QPixmap &picture);
