#pragma once

#include <QLocale>
#include <QString>

/// Tip that shows the file at `path` by its whole path and, when it exists, its size as `locale`
/// writes it, in thousands of bytes as in the list's column: HTML.
QString fileTip(const QString &path, const QLocale &locale = QLocale::system());
