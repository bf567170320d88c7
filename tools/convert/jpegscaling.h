#pragma once

#include "convertcall.h"

#include <optional>

/// How ImageMagick lets the JPEG decoder make an image smaller while it reads.
struct JpegScaling
{
    /// The size to decode to, in the proportions of the image.
    PixelSize decoded;
    /// The size after resizing.
    PixelSize result;
};

/// The scaling that fits an image of `size` into `box`: never decoded to less than twice the
/// result. Nothing when it would gain nothing or the size is zero.
std::optional<JpegScaling> jpegScaling(PixelSize box, PixelSize size);
