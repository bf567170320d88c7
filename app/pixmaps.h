#pragma once

#include <QBitmap>
#include <QBrush>
#include <QPixmap>
#include <QSize>

/// `picture` scaled smoothly to `size` (device-independent pixels) as `mode` says, with as many
/// device pixels as a screen of `ratio` device pixels per pixel shows.
QPixmap scaledPixmap(const QPixmap &picture, QSize size, Qt::AspectRatioMode mode, qreal ratio);

/// The picture at `path` at `size` device-independent pixels, taken from the file, its "@2x" twin
/// or the icon file's entry that suits a screen of `ratio` device pixels per pixel best; never
/// larger than that source. Null when there is no such picture.
QPixmap crispPixmap(const QString &path, QSize size, qreal ratio);

/// Texture brush that paints `picture` at its device-independent size.
QBrush pixmapBrush(const QPixmap &picture);

/// The opaque places of `picture` in device-independent pixels; null when it is opaque all over.
QBitmap widgetMask(const QPixmap &picture);
