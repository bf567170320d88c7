#include "jpegscaling.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

std::string text(PixelSize size)
{
    return std::to_string(size.width) + "x" + std::to_string(size.height);
}

// "595x842" and nothing else.
std::optional<PixelSize> parseBox(const std::string &word)
{
    PixelSize box;
    const char *end = word.data() + word.size();
    const auto [middle, widthError] = std::from_chars(word.data(), end, box.width);
    if (widthError != std::errc() || middle == end || *middle != 'x')
        return std::nullopt;
    const auto [last, heightError] = std::from_chars(middle + 1, end, box.height);
    const bool whole = heightError == std::errc() && last == end;
    return whole && box.width > 0 && box.height > 0 ? std::optional(box) : std::nullopt;
}

// As ImageMagick 6.9.11 and 7.1 round it (ParseMetaGeometry).
PixelSize fitted(PixelSize size, PixelSize box)
{
    const double factor =
        std::min(box.width / double(size.width), box.height / double(size.height));
    const auto scaled = [factor](std::uint32_t side) {
        return std::max(static_cast<std::uint32_t>(std::floor(factor * side + 0.5)), 1U);
    };
    return {scaled(size.width), scaled(size.height)};
}

} // namespace

std::optional<std::vector<std::string>> shrinkingOptions(const std::vector<std::string> &options,
                                                         PixelSize size)
{
    if (options.size() < 2 || options[0] != "-resize" ||
        std::count(options.begin(), options.end(), "-resize") != 1 || size.width == 0 ||
        size.height == 0)
        return std::nullopt;
    const std::optional<PixelSize> box = parseBox(options[1]);
    if (!box)
        return std::nullopt;
    const PixelSize target = fitted(size, *box);
    // The decoder divides sides by 2, 4 or 8, and rounds up.
    const std::uint32_t divisor =
        std::min({size.width / (2 * target.width), size.height / (2 * target.height), 8U});
    if (divisor < 2)
        return std::nullopt;
    const PixelSize decoded = {size.width / divisor, size.height / divisor};
    std::vector<std::string> result = options;
    result[1] = text(target) + "!";
    result.insert(result.begin(), {"-define", "jpeg:size=" + text(decoded)});
    return result;
}
