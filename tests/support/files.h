#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

/// The content of the file at `path`, `otherwise` where it cannot be read.
QByteArray contentOf(const QString &path, const QByteArray &otherwise = {});

/// Writes a file and returns its path. Ends the program where that fails.
QString writeContent(const QString &path, const QByteArray &content);

/// Writes an image with a gradient and fine structure, in the format of the path's extension, and
/// returns its path. Ends the program where that fails.
QString makeImage(const QString &path, QSize size = {8, 6});

/// The names in a folder, hidden ones included, sorted.
QStringList namesIn(const QString &folder);
