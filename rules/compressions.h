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
    {"None", "None"},
    {"Bzip", "Bzip"},
    {"CCITT Group 3", "Fax"},
    {"CCITT Group 4", "Group4"},
    {"JPEG", "JPEG"},
    {"JPEG2000", "JPEG2000"},
    {"Lossless", "Lossless"},
    {"Lempel-Ziv-Welch", "LZW"},
    {"Run-length encoding", "RLE"},
    {"Zip", "zip"},
}};

/// Option text of `convert` for the compression chosen at `index`, with a leading blank, for
/// example " -compress Group4"; "" for the first entry and for an index outside the table.
QString compressOption(int index);
