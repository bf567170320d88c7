#pragma once

#include "copyablepage.h"
#include "spool.h"

#include <cstddef>
#include <vector>

struct TiffImage
{
    /// Of the file.
    std::size_t pages = 1;
    /// All pages, or none when ImageMagick has to convert one of them.
    std::vector<CopyablePage> copied;
};

/// Reads the TIFF file in the descriptor `file`. Pages are copied only if `mayCopy`, as strips may
/// have to be decoded for that. Throws ToolError when the file is incomplete, in any case.
TiffImage readTiffImage(int file, bool mayCopy, Spool &spool);
