#include "gifimages.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

// Bytes of the colour table that the flags of a GIF file state.
std::uint64_t colourTable(std::optional<std::uint8_t> flags)
{
    return flags && (*flags & 0x80) != 0 ? 3 * (std::uint64_t(2) << (*flags & 7)) : 0;
}

} // namespace

// The blocks are those of GIF 89a, appendix A.
std::size_t gifImages(FileBytes &file)
{
    constexpr std::uint8_t image = 0x2C;
    static constexpr std::array<std::uint8_t, 2> kinds = {0x21, image}; // an extension, an image
    const auto isKnown = [](std::optional<std::uint8_t> kind) {
        return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
    };
    std::size_t count = 0;
    file.seek(10);
    const std::uint64_t table = colourTable(file.byte());
    file.skip(2 + table);
    for (auto kind = file.byte(); isKnown(kind); kind = file.byte()) {
        if (kind == image) {
            ++count;
            file.skip(8);
            file.skip(colourTable(file.byte()));
        }
        file.skip(1); // the label of an extension, the code size of an image
        while (const std::uint8_t size = file.byte().value_or(0))
            file.skip(size);
    }
    return std::max<std::size_t>(count, 1);
}
