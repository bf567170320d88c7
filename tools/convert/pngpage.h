#pragma once

#include "copyablepage.h"
#include "filebytes.h"
#include "spool.h"

#include <optional>

struct PngImage
{
    int orientation = 1;
    /// Nothing when ImageMagick has to convert it.
    std::optional<CopyablePage> page;
};

/// Reads all chunks of the PNG file that `file` is at the start of. Throws ToolError when it is
/// incomplete or damaged.
PngImage readPngImage(FileBytes &file, Spool &spool);
