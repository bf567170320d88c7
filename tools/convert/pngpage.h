#pragma once

#include "copyablepage.h"
#include "filebytes.h"
#include "spool.h"

#include <optional>

/// The page of the PNG file that `file` is at the start of, or nothing when ImageMagick has to
/// convert it. Reads all chunks and throws ToolError when the file is incomplete or damaged.
std::optional<CopyablePage> pngPage(FileBytes &file, Spool &spool);
