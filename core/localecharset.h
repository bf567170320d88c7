#pragma once

#include <QByteArray>
#include <QString>

/// Charset that the environment's locale names, as the C library calls it; "UTF-8" for the C and
/// POSIX locales and for a locale that is not installed. `tools/pdftk` follows the same rule.
QByteArray localeCharset();

/// `text` in `charset`, converted by the C library, without a byte-order mark. A character that
/// the charset lacks becomes "?". A charset that the C library does not know counts as UTF-8.
QByteArray encoded(const QString &text, const QByteArray &charset);
