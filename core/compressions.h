#pragma once

#include <QString>

#include <array>

/// A compression as the box offers it, and the word that `convert -compress` takes for it.
struct Compression
{
    const char *text;
    const char *word;
};

/// In the order of the box's items: the index is the key. The first entry leaves the choice to
/// the tool.
inline constexpr std::array<Compression, 11> compressions{{
    {"", ""},
    {QT_TRANSLATE_NOOP("process", "None"), "None"},
    {QT_TRANSLATE_NOOP("process", "Bzip"), "Bzip"},
    {QT_TRANSLATE_NOOP("process", "CCITT Group 3"), "Fax"},
    {QT_TRANSLATE_NOOP("process", "CCITT Group 4"), "Group4"},
    {QT_TRANSLATE_NOOP("process", "JPEG"), "JPEG"},
    {QT_TRANSLATE_NOOP("process", "JPEG2000"), "JPEG2000"},
    {QT_TRANSLATE_NOOP("process", "Lossless"), "Lossless"},
    {QT_TRANSLATE_NOOP("process", "Lempel-Ziv-Welch"), "LZW"},
    {QT_TRANSLATE_NOOP("process", "Run-length encoding"), "RLE"},
    {QT_TRANSLATE_NOOP("process", "Zip"), "zip"},
}};

/// Option text of `convert` for the compression chosen at `index`, with a leading blank, for
/// example " -compress Group4"; "" for the first entry and for an index outside the table.
QString compressOption(int index);
