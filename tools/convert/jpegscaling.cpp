#include "jpegscaling.h"

#include <algorithm>
#include <cmath>

namespace {

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

std::optional<JpegScaling> jpegScaling(PixelSize box, PixelSize size)
{
    if (size.width == 0 || size.height == 0)
        return std::nullopt;
    const PixelSize result = fitted(size, box);
    // The decoder divides sides by 2, 4 or 8, and rounds up.
    const std::uint32_t divisor =
        std::min({size.width / (2 * result.width), size.height / (2 * result.height), 8U});
    if (divisor < 2)
        return std::nullopt;
    return JpegScaling{{size.width / divisor, size.height / divisor}, result};
}
