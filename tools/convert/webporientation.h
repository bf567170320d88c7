#pragma once

#include "filebytes.h"

/// The orientation in the EXIF chunk of the WEBP file that `file` is at the start of, from 1
/// (upright) to 8; 1 where there is none. ImageMagick 6.9.11 does not look there.
int webpOrientation(FileBytes &file);
