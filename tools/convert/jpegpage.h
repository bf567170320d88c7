#pragma once

#include "convertcall.h"
#include "copyablepage.h"
#include "filebytes.h"
#include "spool.h"

#include <optional>

struct JpegImage
{
    /// As stored; zero when the file has no readable header.
    PixelSize size;
    int orientation = 1;
    /// Nothing when ImageMagick has to convert it.
    std::optional<CopyablePage> page;
};

/// Reads the JPEG file (ITU-T T.81) that `file` is at the start of to the end of its image; what is
/// appended to that does not count. Throws ToolError when it is incomplete or damaged.
JpegImage readJpegImage(FileBytes &file, Spool &spool);
