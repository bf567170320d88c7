#pragma once

#include "filebytes.h"

#include <cstddef>

/// The number of images in the GIF file that `file` is at the start of, at least 1.
std::size_t gifImages(FileBytes &file);
