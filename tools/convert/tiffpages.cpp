#include "tiffpages.h"

#include "density.h"
#include "error.h"
#include "group4.h"
#include "tiffdirectory.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>
#include <utility>

namespace {

constexpr std::uint64_t group4 = 4;
constexpr std::uint64_t zeroIsWhite = 0;
constexpr std::uint64_t zeroIsBlack = 1;
constexpr std::uint64_t pageOfSeveral = 2;
constexpr std::uint64_t lowestBitFirst = 2;

bool isSide(std::uint64_t pixels)
{
    return pixels > 0 && pixels <= maxSide;
}

bool isCopyable(const TiffDirectory &page)
{
    const std::uint64_t rows = std::min(page.rowsPerStrip, page.height);
    return !page.doubtful && !page.tiled && page.compression == group4 && page.bits == 1 &&
           page.samples == 1 && page.group4Options == 0 && page.planarConfiguration == 1 &&
           (page.photometric == zeroIsWhite || page.photometric == zeroIsBlack) &&
           (page.fillOrder == 1 || page.fillOrder == lowestBitFirst) && page.orientation >= 1 &&
           page.orientation <= 8 && (page.subfileType == 0 || page.subfileType == pageOfSeveral) &&
           page.resolutionUnit >= 1 && page.resolutionUnit <= 3 && isSide(page.width) &&
           isSide(page.height) && rows > 0 && page.strips == (page.height + rows - 1) / rows &&
           !page.hasEmptyStrip;
}

Density densityOf(const TiffDirectory &page)
{
    constexpr std::array units = {Density::Unit::None, Density::Unit::Inch,
                                  Density::Unit::Centimetre};
    return {page.xResolution, page.yResolution,
            units[static_cast<std::size_t>(page.resolutionUnit - 1)]};
}

CopyablePage pageOf(const TiffDirectory &directory)
{
    CopyablePage page;
    page.width = static_cast<std::uint32_t>(directory.width);
    page.height = static_cast<std::uint32_t>(directory.height);
    page.bitsPerComponent = 1;
    page.components = 1;
    page.filter = "CCITTFaxDecode";
    // By the rows, not by the mark at the end, which is not always there.
    page.decodeParms = {{"/K", "-1"},
                        {"/Columns", std::to_string(page.width)},
                        {"/Rows", std::to_string(page.height)},
                        {"/EndOfBlock", "false"}};
    page.inverted = directory.photometric == zeroIsBlack;
    page.orientation = static_cast<int>(directory.orientation);
    setPageSize(page, densityOf(directory));
    return page;
}

constexpr std::array<std::uint64_t, 3> faxCompressions = {2, 3, group4};

bool isFax(const TiffDirectory &page)
{
    return std::ranges::find(faxCompressions, page.compression) != faxCompressions.end() &&
           !page.tiled && isSide(page.width) && isSide(page.height) && page.bits == 1 &&
           page.samples == 1;
}

// Group 4 data that ends as it has to is not decoded.
bool endsWithMark(FileBytes &bytes, const Extent &strip)
{
    constexpr std::uint64_t mark = 0x001001;
    std::uint64_t end = 0;
    bytes.seek(strip.offset + strip.length - std::min<std::uint64_t>(strip.length, sizeof end));
    for (const char byte : bytes.read(sizeof end))
        end = end << 8U | static_cast<unsigned char>(byte);
    return end != 0 && (end >> std::countr_zero(end) & 0xFFFFFFU) == mark;
}

void requireWhole(const TiffDirectory &page, int file)
{
    // The pages of a long fax take seconds together.
    requireNoSignal();
    if (isFax(page) && !isWholeFax(file, page.offset))
        throw ToolError("the image is damaged: rows of a fax are missing");
}

std::optional<std::vector<Extent>> dataOf(const TiffDirectory &directory, FileBytes &bytes,
                                          int file, Spool &spool)
{
    if (directory.strips == 1 && directory.fillOrder != lowestBitFirst) {
        if (!endsWithMark(bytes, directory.firstStrip))
            requireWhole(directory, file);
        return std::vector<Extent>{directory.firstStrip};
    }
    const std::optional<std::string> strip = asOneStrip(file, directory.offset);
    return strip ? std::optional(std::vector<Extent>{spool.add(*strip)}) : std::nullopt;
}

// Empty when libtiff finds fault with a page.
std::vector<CopyablePage> copiedPages(const std::vector<TiffDirectory> &directories,
                                      FileBytes &bytes, int file, Spool &spool)
{
    std::vector<CopyablePage> pages;
    for (const TiffDirectory &directory : directories) {
        CopyablePage page = pageOf(directory);
        std::optional<std::vector<Extent>> data = dataOf(directory, bytes, file, spool);
        if (!data)
            return {};
        page.extents = std::move(*data);
        pages.push_back(std::move(page));
    }
    return pages;
}

} // namespace

TiffImage readTiffImage(FileBytes &bytes, int file, bool mayCopy, Spool &spool)
{
    const std::vector<TiffDirectory> directories = tiffDirectories(bytes);
    TiffImage image = {directories.size(), {}};
    if (mayCopy && std::ranges::all_of(directories, isCopyable))
        image.copied = copiedPages(directories, bytes, file, spool);
    if (image.copied.empty()) {
        for (const TiffDirectory &directory : directories)
            requireWhole(directory, file);
    }
    return image;
}
