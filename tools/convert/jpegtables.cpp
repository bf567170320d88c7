#include "jpegtables.h"

#include <algorithm>

std::optional<std::string> withUsedTables(const QuantizationSegment &segment,
                                          const std::set<int> &used)
{
    constexpr std::size_t values = 64;
    const std::string &content = segment.content;
    std::string tables;
    for (std::size_t at = 0; at < content.size();) {
        const auto head = static_cast<unsigned char>(content[at]);
        const std::size_t size = 1 + values * (head >> 4U == 0 ? 1 : 2);
        if (head >> 4U > 1 || size > content.size() - at)
            return std::nullopt;
        if (used.count(static_cast<int>(head & 0x0FU)) != 0)
            tables += content.substr(at, size);
        at += size;
    }
    if (tables.empty())
        return tables;
    const std::size_t length = tables.size() + 2;
    return std::string("\xFF\xDB") + static_cast<char>(length >> 8U) + static_cast<char>(length) +
           tables;
}

void replacePart(std::vector<Extent> &extents, const Extent &part,
                 const std::optional<Extent> &replacement)
{
    const auto holder = std::ranges::find_if(extents, [&part](const Extent &extent) {
        return !extent.isSpooled && extent.offset <= part.offset &&
               part.offset + part.length <= extent.offset + extent.length;
    });
    if (holder == extents.end())
        return;
    const std::uint64_t behind = part.offset + part.length;
    std::vector<Extent> pieces = {{holder->offset, part.offset - holder->offset}};
    if (replacement)
        pieces.push_back(*replacement);
    pieces.push_back({behind, holder->offset + holder->length - behind});
    std::erase_if(pieces, [](const Extent &piece) { return piece.length == 0; });
    extents.insert(extents.erase(holder), pieces.begin(), pieces.end());
}
