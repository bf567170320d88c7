#pragma once

#include "jpegscaling.h"

#include <cstddef>

/// The number of images in a TIFF or GIF file, at least 1. Throws ToolError when a TIFF
/// file is damaged.
size_t imagesIn(int file);

/// Pixels of a JPEG file; zero when it has no readable header.
PixelSize jpegSize(int file);

/// Whether libjpeg takes everything in a JPEG file before its image data without a complaint: what
/// another reader of damaged tables would show is anybody's guess.
bool isJpegSound(int file);
