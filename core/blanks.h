#pragma once

#include <QString>

#include <algorithm>

/// True when `text` is empty or consists of blanks (U+0020) alone; a tab is no blank.
inline bool isBlank(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c == QLatin1Char(' '); });
}
