#pragma once

#include <QIcon>
#include <QString>

class QByteArray;
class QImage;

/// The icon file at `path` with all its sizes, each of which is decoded when it is first shown;
/// `QIcon(path)` decodes all of them at once, of which a window then shows one. The file's images
/// are PNG ones, as resources/render makes them. Sizes above 128 pixels are shown where they are
/// asked for, but not listed among the available ones. Without a readable file: an icon without
/// sizes, but not a null one.
QIcon iconFromFile(const QString &path);

/// Adds the PNG picture at `path`, and its "@2x" twin where a screen needs it, to `icon`.
void addPng(QIcon &icon, const QString &path, QIcon::Mode mode = QIcon::Normal);

/// The PNG picture in `content`; null when there is none. Spares what the toolkit does first for a
/// picture of no certain format: it loads every image plug-in and asks it (Qt 6.4, also when the
/// format is named).
QImage pngImage(QByteArray content);
