#include "copyablepage.h"

#include "filebytes.h"
#include "jpegpage.h"
#include "pngpage.h"
#include "tiffpages.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

using Pages = std::optional<std::vector<CopyablePage>>;

Pages onlyPage(std::optional<CopyablePage> page, bool wanted)
{
    if (!page || !wanted)
        return std::nullopt;
    std::vector<CopyablePage> pages;
    pages.push_back(std::move(*page));
    return pages;
}

bool startsAsTiff(std::string_view start)
{
    constexpr std::array<std::string_view, 4> starts = {
        std::string_view("II*\0", 4), std::string_view("MM\0*", 4), std::string_view("II+\0", 4),
        std::string_view("MM\0+", 4)};
    return std::any_of(starts.begin(), starts.end(),
                       [start](std::string_view known) { return start.starts_with(known); });
}

} // namespace

Pages copyablePages(int file, Compression asked)
{
    constexpr std::size_t longestStart = 8;
    const auto asks = [asked](Compression own) {
        return asked == Compression::Unset || asked == own;
    };
    FileBytes bytes(file);
    const std::string start = bytes.read(longestStart);
    bytes.seek(0);
    if (start.starts_with("\xFF\xD8\xFF"))
        return onlyPage(jpegPage(bytes), asks(Compression::Jpeg));
    if (start == "\x89PNG\r\n\x1A\n")
        return onlyPage(pngPage(bytes), asks(Compression::Zip));
    if (startsAsTiff(start))
        return tiffPages(bytes, file, asks(Compression::Group4));
    return std::nullopt;
}
