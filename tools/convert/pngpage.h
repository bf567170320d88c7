#pragma once

#include "copyablepage.h"
#include "filebytes.h"

#include <optional>

/// The page of the PNG file that `file` is at the start of, or nothing when ImageMagick has to
/// convert it. Throws ToolError when a chunk or the image data is incomplete or damaged.
std::optional<CopyablePage> pngPage(FileBytes &file);
