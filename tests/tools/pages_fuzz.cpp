#include "error.h"
#include "fuzztarget.h"
#include "imageplan.h"

#include <cmath>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

#ifdef FUZZ_PNG
#include <zlib.h>
#endif

namespace {

constexpr std::uint32_t maxSide = 32000;

void demand(bool holds)
{
    if (!holds)
        std::abort();
}

void demandExtentsInside(const CopyablePage &page, std::size_t size)
{
    std::uint64_t end = 0;
    demand(!page.extents.empty());
    for (const Extent &extent : page.extents) {
        demand(extent.length > 0);
        if (extent.isSpooled)
            continue;
        demand(extent.offset >= end && extent.offset <= size &&
               extent.length <= size - extent.offset);
        end = extent.offset + extent.length;
    }
}

void demandWholePage(const CopyablePage &page, std::size_t size)
{
    demand(page.width > 0 && page.width <= maxSide);
    demand(page.height > 0 && page.height <= maxSide);
    demand(std::isfinite(page.pageWidth) && page.pageWidth > 0);
    demand(std::isfinite(page.pageHeight) && page.pageHeight > 0);
    demand(page.components == 1 || page.components == 3);
    demand(page.bitsPerComponent >= 1 && page.bitsPerComponent <= 8);
    demand(page.palette.size() % 3 == 0 && page.palette.size() <= std::size_t(3) * 256);
    demand(!page.filter.empty());
    demandExtentsInside(page, size);
}

// The shortest image of a GIF file has twelve bytes.
void demandPossibleCount(const ConvertedImage &image, std::size_t size)
{
    constexpr std::size_t shortest = 12;
    demand(image.images > 0);
    demand(image.kind != ImageKind::Gif || image.images <= size / shortest + 1);
}

#ifdef FUZZ_PNG
// A fuzzer does not guess check sums: each chunk gets the right one, but for one in 256.
void fixChecksums(std::uint8_t *data, std::size_t size)
{
    constexpr std::size_t signature = 8;
    constexpr std::size_t around = 12;
    for (std::size_t at = signature; at + around <= size;) {
        const auto part = [&](std::size_t place) { return std::size_t{data[at + place]}; };
        const std::size_t length = part(0) << 24 | part(1) << 16 | part(2) << 8 | part(3);
        if (length > size - at - around)
            return;
        std::uint8_t *stored = data + at + 8 + length;
        const auto sum = crc32(0, data + at + 4, static_cast<uInt>(length + 4));
        if (stored[0] != 0xFF)
            for (std::size_t place = 0; place < 4; ++place)
                stored[place] = static_cast<std::uint8_t>(sum >> (24 - 8 * place));
        at += length + around;
    }
}
#endif

} // namespace

#ifdef FUZZ_PNG
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t most);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t most, unsigned int)
{
    const std::size_t changed = LLVMFuzzerMutate(data, size, most);
    fixChecksums(data, changed);
    return changed;
}
#endif

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FileDescriptor file(memfd_create("image", MFD_CLOEXEC));
    Spool spool(FileDescriptor(memfd_create("spool", MFD_CLOEXEC)));
    demand(write(file.get(), data, size) == static_cast<ssize_t>(size));
    try {
        const ImagePlan plan = planImage(file.get(), {}, spool);
        if (const auto *copied = std::get_if<CopiedImage>(&plan)) {
            demand(!copied->pages.empty());
            for (const CopyablePage &page : copied->pages)
                demandWholePage(page, size);
        } else {
            demandPossibleCount(std::get<ConvertedImage>(plan), size);
        }
    } catch (const ToolError &) {
        // An incomplete or damaged file.
    }
    return 0;
}
