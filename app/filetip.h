#pragma once

#include <QLocale>
#include <QString>

/// The tip for the file at `path`, as HTML: its whole path and, if it exists, its size as `locale`
/// writes it, in thousands of bytes as in the list's column.
QString fileTip(const QString &path, const QLocale &locale = QLocale::system());
