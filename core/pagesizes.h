#pragma once

#include <QString>

#include <array>

/// A paper size as the page size box offers it; width and height in points (1/72 inch), both 0
/// for the entry that leaves the image's own size alone.
struct PageSize
{
    const char *text;
    int width;
    int height;
};

/// In the order of the box's items: the index is the key. "279. 4mm" is the text as shown.
inline constexpr std::array<PageSize, 20> pageSizes{{
    {"", 0, 0},
    {QT_TRANSLATE_NOOP("process", "A0 (841x1189 mm)"), 2380, 3368},
    {QT_TRANSLATE_NOOP("process", "A1 (594x841 mm)"), 1684, 2380},
    {QT_TRANSLATE_NOOP("process", "A2 (420x594 mm)"), 1190, 1684},
    {QT_TRANSLATE_NOOP("process", "A3 (297x420 mm)"), 842, 1190},
    {QT_TRANSLATE_NOOP("process", "A4 (210x297 mm)"), 595, 842},
    {QT_TRANSLATE_NOOP("process", "A5 (148x210 mm)"), 421, 595},
    {QT_TRANSLATE_NOOP("process", "A6 (105x148 mm)"), 297, 421},
    {QT_TRANSLATE_NOOP("process", "A7 (74x105 mm)"), 210, 297},
    {QT_TRANSLATE_NOOP("process", "A8 (52x74 mm)"), 148, 210},
    {QT_TRANSLATE_NOOP("process", "A9 (37x52 mm)"), 105, 148},
    {QT_TRANSLATE_NOOP("process", "ArchA (229x305 mm)"), 648, 864},
    {QT_TRANSLATE_NOOP("process", "ArchB (305x457 mm)"), 864, 1296},
    {QT_TRANSLATE_NOOP("process", "ArchC (457x610 mm)"), 1296, 1728},
    {QT_TRANSLATE_NOOP("process", "ArchD (610x914 mm)"), 1728, 2592},
    {QT_TRANSLATE_NOOP("process", "ArchE (914x1219 mm)"), 2592, 3456},
    {QT_TRANSLATE_NOOP("process", "Ledger (431.8x279. 4mm)"), 1224, 792},
    {QT_TRANSLATE_NOOP("process", "Legal (215.9x355.6 mm)"), 612, 1008},
    {QT_TRANSLATE_NOOP("process", "Letter (215.9x279.4 mm)"), 612, 792},
    {QT_TRANSLATE_NOOP("process", "Tabloid (279.4x431.8 mm)"), 792, 1224},
}};

/// Option text of `convert` for the page size chosen at `index`, with a leading blank, for
/// example " -resize 595x842"; "" for the first entry and for an index outside the table.
/// The tool scales the image, up or down, to fit that box; it neither pads nor crops.
QString resizeOption(int index);
