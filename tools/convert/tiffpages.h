#pragma once

#include "copyablepage.h"
#include "filebytes.h"

#include <optional>
#include <vector>

/// The pages of the TIFF file `bytes`, which is also the descriptor `file`, or nothing when
/// ImageMagick has to convert one of them. They are worked out only if `wanted`, as strips may have
/// to be decoded for that; throws ToolError when the file is incomplete, in any case.
std::optional<std::vector<CopyablePage>> tiffPages(FileBytes &bytes, int file, bool wanted);
