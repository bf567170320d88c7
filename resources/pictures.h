#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

class QByteArray;
class QImage;

// The product's own pictures, read from its resources without Qt's detours.

/// The icon file at `path` with all its sizes, each of which is decoded when it is first shown;
/// `QIcon(path)` decodes all of them at once, of which a window then shows one. The file's images
/// are PNG ones, as resources/render makes them. Sizes above 128 pixels are shown where they are
/// asked for, but not listed among the available ones. Without a readable file: an icon without
/// sizes, but not a null one.
QIcon iconFromFile(const QString &path);

/// Adds the PNG picture at `path`, and its "@2x" twin where a screen needs it, to `icon`.
void addPng(QIcon &icon, const QString &path, QIcon::Mode mode = QIcon::Normal);

/// The PNG picture in `content`; null when there is none. Spares what Qt does first for a
/// picture of no certain format: it loads every image plug-in and asks it (Qt 6.4, also when the
/// format is named).
QImage pngImage(QByteArray content);

/// The picture at `path`, decoded and scaled smoothly to exactly `size` (device-independent pixels)
/// in one go, which for a JPEG is a fraction of the work of both. `ratio` is the screen's device
/// pixels per pixel. Null when there is none.
QPixmap readScaled(const QString &path, QSize size, qreal ratio);

/// The PNG picture at `path` at `size` device-independent pixels, taken from the file or its "@2x"
/// twin, whichever suits a screen of `ratio` device pixels per pixel best; never larger than that
/// source. Null when there is no such picture. Decoded once.
QPixmap crispPixmap(const QString &path, QSize size, qreal ratio);
