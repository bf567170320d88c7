#pragma once

#include <QByteArray>
#include <QString>

/// The document description as typed.
struct Description
{
    QString title;
    QString subject;
    QString keywords;
    QString author;
};

/// True when every field is empty or holds only blanks (U+0020; a tab counts as text).
bool isBlank(const Description &description);

/// The eight lines that `pdftk update_info` reads: a key line and a value line for each field,
/// also for an empty one, values as typed.
QString infoFile(const Description &description);
