#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct PixelSize
{
    std::uint32_t width = 0, height = 0;
};

/// Options by which ImageMagick lets the JPEG decoder make an image of `size` smaller while it
/// reads, and makes it as large as `options` say afterwards: never decoded to less than twice that
/// size. Nothing when it would gain nothing, or when `options` do not begin with the one resizing.
std::optional<std::vector<std::string>> shrinkingOptions(const std::vector<std::string> &options,
                                                         PixelSize size);
