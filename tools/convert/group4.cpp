#include "group4.h"

#include "filebytes.h"
#include "tifffile.h"

#include <algorithm>
#include <vector>

namespace {

using Row = std::vector<unsigned char>;

Row rowOf(const TiffFile &tiff)
{
    return Row(static_cast<std::size_t>(TIFFScanlineSize(tiff.get())));
}

void setUp(const TiffFile &tiff, std::uint32_t width, std::uint32_t height)
{
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, width);
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, height);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, height);
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 1);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE);
    TIFFSetField(tiff.get(), TIFFTAG_FILLORDER, FILLORDER_MSB2LSB);
}

// The rows of a strip of a fax, as libtiff reads them.
struct StripRows
{
    std::uint32_t count = 0;
    std::uint32_t faulty = 0;
    // Faulty and blank ones at the end of the strip.
    std::uint32_t missing = 0;

    // A bad row may swallow the next one; neither can be told from damage of that size.
    bool isWhole() const
    {
        const std::uint32_t bad = faulty - missing;
        return missing <= 1 + bad + count / 100 && bad <= count / 4;
    }
};

void readRow(TiffFile &tiff, std::uint32_t y, Row &row, StripRows &strip)
{
    const bool isRead = TIFFReadScanline(tiff.get(), row.data(), y, 0) == 1;
    const bool isFaulty = tiff.takeReport() || !isRead;
    const bool isBlank = std::ranges::all_of(row, [](unsigned char byte) { return byte == 0; });
    strip.count += 1;
    strip.faulty += isFaulty ? 1 : 0;
    strip.missing = isFaulty && (!isRead || isBlank) ? strip.missing + 1 : 0;
}

// Whether libtiff finds nothing wrong with one row more than the image has. Nothing in Group 4
// leads back from damaged data to the rows.
bool isRowLeft(TiffFile &tiff, std::uint32_t height, Row &row)
{
    if (tiff.value<std::uint16_t>(TIFFTAG_COMPRESSION) != COMPRESSION_CCITTFAX4)
        return false;
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, height + 1);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, height + 1);
    StripRows beyond;
    readRow(tiff, height, row, beyond);
    return beyond.faulty == 0;
}

// No fax machine writes tiles: nothing may be wrong with them.
bool areWholeTiles(TiffFile &tiff)
{
    constexpr tmsize_t maxTile = tmsize_t{256} * 1024 * 1024;
    const tmsize_t size = TIFFTileSize(tiff.get());
    if (size <= 0 || size > maxTile)
        return false;
    Row tile(static_cast<std::size_t>(size));
    for (std::uint32_t number = 0; number < TIFFNumberOfTiles(tiff.get()); ++number) {
        requireNoSignal();
        if (TIFFReadEncodedTile(tiff.get(), number, tile.data(), size) < 0 || tiff.takeReport())
            return false;
    }
    return true;
}

} // namespace

std::optional<std::string> asOneStrip(int file, std::uint64_t directory)
{
    TiffFile from(file, directory);
    TiffFile to;
    const auto height = from.value<std::uint32_t>(TIFFTAG_IMAGELENGTH);
    setUp(to, from.value<std::uint32_t>(TIFFTAG_IMAGEWIDTH), height);
    Row row = rowOf(from);
    for (std::uint32_t y = 0; y < height; ++y) {
        if (TIFFReadScanline(from.get(), row.data(), y, 0) != 1 || from.takeReport() ||
            TIFFWriteScanline(to.get(), row.data(), y, 0) != 1)
            return std::nullopt;
    }
    if (TIFFFlushData(to.get()) != 1 || to.takeReport())
        return std::nullopt;
    return to.written().substr(TIFFGetStrileOffset(to.get(), 0));
}

bool isWholeFax(int file, std::uint64_t directory)
{
    TiffFile tiff(file, directory);
    if (TIFFIsTiled(tiff.get()) != 0)
        return areWholeTiles(tiff);
    const auto height = tiff.value<std::uint32_t>(TIFFTAG_IMAGELENGTH);
    const auto rowsPerStrip = tiff.value<std::uint32_t>(TIFFTAG_ROWSPERSTRIP);
    Row row = rowOf(tiff);
    StripRows strip;
    for (std::uint32_t y = 0; y < height; ++y) {
        if (y % rowsPerStrip == 0) {
            if (!strip.isWhole())
                return false;
            strip = {};
        }
        readRow(tiff, y, row, strip);
    }
    return strip.isWhole() && (strip.count < height || !isRowLeft(tiff, height, row));
}
