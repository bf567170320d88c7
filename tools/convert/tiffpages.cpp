#include "tiffpages.h"

#include "density.h"
#include "error.h"
#include "filebytes.h"
#include "group4.h"
#include "tifffile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>
#include <utility>

namespace {

// What libtiff reads most fields into.
using Short = std::uint16_t;
using Long = std::uint32_t;

struct Directory
{
    std::uint64_t offset = 0;
    /// One bit, in a compression of fax machines.
    bool isFax = false;
    /// If it can be copied; without extents its strips have to become one.
    std::optional<CopyablePage> page;
    /// Group 4 data that ends as it has to is not decoded.
    bool endsWithMark = false;
};

struct Field
{
    std::uint64_t tag = 0;
    std::uint64_t count = 0;
};

// The fields of the current directory, which libtiff cannot list: it passes over some without a
// word, reads no more of a table than it needs, and takes a directory whose end is cut off for the
// last one (4.5). Throws ToolError when the directory does not lie inside the file.
std::vector<Field> fieldsOf(const TiffFile &tiff)
{
    const bool isBigEndian = TIFFIsBigEndian(tiff.get()) != 0;
    const auto number = [isBigEndian](std::string bytes) {
        if (!isBigEndian)
            std::ranges::reverse(bytes);
        std::uint64_t value = 0;
        for (const char byte : bytes)
            value = value << 8U | static_cast<unsigned char>(byte);
        return value;
    };
    const bool isBig = TIFFIsBigTIFF(tiff.get()) != 0;
    const std::size_t countSize = isBig ? 8 : 2;
    const std::size_t numberSize = isBig ? 8 : 4;
    const std::size_t fieldSize = 4 + 2 * numberSize;
    const std::uint64_t start = TIFFCurrentDirOffset(tiff.get());
    const std::size_t size = number(tiff.read(start, countSize)) * fieldSize + numberSize;
    const std::string bytes = tiff.read(start + countSize, size);
    if (bytes.size() < size)
        throw ToolError("the image is incomplete: the TIFF file ends inside a directory");
    std::vector<Field> fields;
    for (std::size_t at = 0; at + fieldSize <= size; at += fieldSize)
        fields.push_back({number(bytes.substr(at, 2)), number(bytes.substr(at + 4, numberSize))});
    return fields;
}

// Whether nothing but these fields makes the page. Of all but the strips libtiff checks the count.
bool areKnown(const std::vector<Field> &fields, std::uint64_t strips)
{
    // Those read here, and then what ImageMagick makes no page from: thresholding, names,
    // descriptions, least and greatest sample, date, page number, copyright and the like.
    constexpr std::array<Short, 33> known = {
        254, 256, 257, 258, 259, 262, 266, 273, 274, 277, 278, 279, 282, 283, 284, 293,  296,
        263, 264, 265, 269, 270, 271, 272, 280, 281, 297, 305, 306, 315, 316, 326, 33432};
    return std::ranges::all_of(fields, [&known, strips](const Field &field) {
        const bool isTable =
            field.tag == TIFFTAG_STRIPOFFSETS || field.tag == TIFFTAG_STRIPBYTECOUNTS;
        return std::ranges::find(known, field.tag) != known.end() &&
               (!isTable || field.count == strips);
    });
}

Extent stripOf(const TiffFile &tiff, Long strip)
{
    return {TIFFGetStrileOffset(tiff.get(), strip), TIFFGetStrileByteCount(tiff.get(), strip)};
}

Long stripsOf(const TiffFile &tiff)
{
    return TIFFIsTiled(tiff.get()) != 0 ? TIFFNumberOfTiles(tiff.get())
                                        : TIFFNumberOfStrips(tiff.get());
}

// Whether each strip holds data. Throws ToolError when one does not lie inside the file; not of the
// old form of JPEG, which has fields of its own for its data.
bool holdsData(const TiffFile &tiff)
{
    const bool isOldJpeg = tiff.value<Short>(TIFFTAG_COMPRESSION) == COMPRESSION_OJPEG;
    bool isFilled = true;
    for (Long strip = 0; strip < stripsOf(tiff); ++strip) {
        const Extent extent = stripOf(tiff, strip);
        const bool isInside =
            extent.offset <= tiff.size() && extent.length <= tiff.size() - extent.offset;
        if (!isInside && !isOldJpeg)
            throw ToolError(
                "the image is incomplete: a strip of the TIFF file lies beyond its end");
        isFilled &= extent.length > 0;
    }
    return isFilled;
}

// In RLEW, libtiff (4.5) loses rows of whole images as well: they are missing on the page, too.
bool isFax(const TiffFile &tiff)
{
    constexpr std::array<Short, 4> compressions = {COMPRESSION_CCITTRLE, COMPRESSION_CCITTRLEW,
                                                   COMPRESSION_CCITTFAX3, COMPRESSION_CCITTFAX4};
    const auto isSide = [&tiff](Long tag) {
        const auto pixels = tiff.value<Long>(tag);
        return pixels > 0 && pixels <= maxSide;
    };
    return std::ranges::find(compressions, tiff.value<Short>(TIFFTAG_COMPRESSION)) !=
               compressions.end() &&
           isSide(TIFFTAG_IMAGEWIDTH) && isSide(TIFFTAG_IMAGELENGTH) &&
           tiff.value<Short>(TIFFTAG_BITSPERSAMPLE) == 1 &&
           tiff.value<Short>(TIFFTAG_SAMPLESPERPIXEL) == 1;
}

bool isCopyable(const TiffFile &tiff)
{
    const auto photometric = tiff.value<Short>(TIFFTAG_PHOTOMETRIC, UINT16_MAX);
    const auto subfileType = tiff.value<Long>(TIFFTAG_SUBFILETYPE);
    return isFax(tiff) && TIFFIsTiled(tiff.get()) == 0 &&
           tiff.value<Short>(TIFFTAG_COMPRESSION) == COMPRESSION_CCITTFAX4 &&
           tiff.value<Long>(TIFFTAG_GROUP4OPTIONS) == 0 &&
           tiff.value<Short>(TIFFTAG_PLANARCONFIG) == PLANARCONFIG_CONTIG &&
           (photometric == PHOTOMETRIC_MINISWHITE || photometric == PHOTOMETRIC_MINISBLACK) &&
           (subfileType == 0 || subfileType == FILETYPE_PAGE);
}

Density densityOf(const TiffFile &tiff)
{
    constexpr std::array units = {Density::Unit::None, Density::Unit::Inch,
                                  Density::Unit::Centimetre};
    return {tiff.value<float>(TIFFTAG_XRESOLUTION), tiff.value<float>(TIFFTAG_YRESOLUTION),
            units.at(tiff.value<Short>(TIFFTAG_RESOLUTIONUNIT) - 1U)};
}

CopyablePage pageOf(const TiffFile &tiff)
{
    CopyablePage page;
    page.width = tiff.value<Long>(TIFFTAG_IMAGEWIDTH);
    page.height = tiff.value<Long>(TIFFTAG_IMAGELENGTH);
    page.bitsPerComponent = 1;
    page.components = 1;
    page.filter = "CCITTFaxDecode";
    // By the rows, not by the mark at the end, which is not always there.
    page.decodeParms = {{"/K", "-1"},
                        {"/Columns", std::to_string(page.width)},
                        {"/Rows", std::to_string(page.height)},
                        {"/EndOfBlock", "false"}};
    page.inverted = tiff.value<Short>(TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_MINISBLACK;
    page.orientation = tiff.value<Short>(TIFFTAG_ORIENTATION);
    setPageSize(page, densityOf(tiff));
    if (stripsOf(tiff) == 1 && tiff.value<Short>(TIFFTAG_FILLORDER) == FILLORDER_MSB2LSB)
        page.extents = {stripOf(tiff, 0)};
    return page;
}

bool endsWithMark(const TiffFile &tiff, const Extent &strip)
{
    constexpr std::uint64_t mark = 0x001001;
    std::uint64_t end = 0;
    const std::uint64_t size = std::min<std::uint64_t>(strip.length, sizeof end);
    for (const char byte : tiff.read(strip.offset + strip.length - size, size))
        end = end << 8U | static_cast<unsigned char>(byte);
    return end != 0 && (end >> std::countr_zero(end) & 0xFFFFFFU) == mark;
}

// The directories of the pages in their order.
std::vector<Directory> directoriesOf(int file, bool mayCopy)
{
    constexpr std::size_t maxDirectories = 65535;
    TiffFile tiff(file);
    std::vector<Directory> directories;
    std::uint64_t strips = 0;
    while (directories.size() < maxDirectories && tiff.readNext()) {
        requireNoSignal();
        strips += stripsOf(tiff);
        if (strips > tiff.size())
            throw ToolError("the image is damaged: tables of the TIFF file overlap");
        const bool isPlain = areKnown(fieldsOf(tiff), stripsOf(tiff));
        const bool isSound = holdsData(tiff) && !tiff.takeReport();
        Directory &directory = directories.emplace_back();
        directory.offset = TIFFCurrentDirOffset(tiff.get());
        directory.isFax = isFax(tiff);
        if (mayCopy && isPlain && isSound && isCopyable(tiff)) {
            directory.page = pageOf(tiff);
            directory.endsWithMark = !directory.page->extents.empty() &&
                                     endsWithMark(tiff, directory.page->extents.front());
        }
    }
    if (directories.empty())
        throw ToolError("the image is damaged: the TIFF file holds no page");
    // Pages may be missing that the loop leaves out.
    if (TIFFLastDirectory(tiff.get()) == 0)
        throw ToolError("the image is damaged: the directories of the TIFF file form a loop");
    return directories;
}

void requireWhole(const Directory &directory, int file)
{
    // The pages of a long fax take seconds together.
    requireNoSignal();
    if (directory.isFax && !isWholeFax(file, directory.offset))
        throw ToolError("the image is damaged: rows of a fax are missing");
}

// Empty when one of the pages cannot be copied.
std::vector<CopyablePage> copiedPages(std::vector<Directory> &directories, int file, Spool &spool)
{
    std::vector<CopyablePage> pages;
    for (Directory &directory : directories) {
        CopyablePage &page = *directory.page;
        if (page.extents.empty()) {
            const std::optional<std::string> strip = asOneStrip(file, directory.offset);
            if (!strip)
                return {};
            page.extents = {spool.add(*strip)};
        } else if (!directory.endsWithMark) {
            requireWhole(directory, file);
        }
        pages.push_back(std::move(page));
    }
    return pages;
}

} // namespace

TiffImage readTiffImage(int file, bool mayCopy, Spool &spool)
{
    std::vector<Directory> directories = directoriesOf(file, mayCopy);
    TiffImage image = {directories.size(), {}};
    if (std::ranges::all_of(directories, [](const auto &each) { return each.page.has_value(); }))
        image.copied = copiedPages(directories, file, spool);
    if (image.copied.empty()) {
        for (const Directory &directory : directories)
            requireWhole(directory, file);
    }
    return image;
}
