#pragma once

#include "convertcall.h"
#include "copyablepage.h"
#include "spool.h"

#include <cstddef>
#include <optional>
#include <variant>
#include <vector>

enum class ImageKind { Jpeg, Png, Tiff, Gif, Webp, Other };

/// An image whose pages are copied.
struct CopiedImage
{
    std::vector<CopyablePage> pages;
};

/// An image that ImageMagick has to convert.
struct ConvertedImage
{
    ImageKind kind = ImageKind::Other;
    /// Of a TIFF or GIF file, at least 1.
    std::size_t images = 1;
    /// Of a JPEG file as stored; zero when it has no readable header.
    PixelSize size = {};
    /// As we read it; nothing where ImageMagick reads it well.
    std::optional<int> orientation = {};
};

using ImagePlan = std::variant<CopiedImage, ConvertedImage>;

/// Reads the image in the descriptor `file`, a regular file, and decides how it becomes pages. Does
/// not move the file offset. Throws ToolError when a JPEG, PNG or TIFF file is incomplete or
/// damaged.
ImagePlan planImage(int file, const ConvertOptions &options, Spool &spool);
