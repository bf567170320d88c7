#pragma once

#include "copyablepage.h"
#include "filebytes.h"

#include <optional>

/// The page of the JPEG file (ITU-T T.81) that `file` is at the start of, or nothing when
/// ImageMagick has to convert it. Reads to the end of the image and throws ToolError when it is
/// incomplete or damaged; what is appended to the image does not count.
std::optional<CopyablePage> jpegPage(FileBytes &file);
