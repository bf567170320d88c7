#pragma once

#include "density.h"
#include "filebytes.h"

#include <cstdint>
#include <string>
#include <vector>

/// What one directory of a TIFF file (TIFF 6.0, or BigTIFF) says of its page.
struct TiffDirectory
{
    std::uint64_t offset = 0;
    std::uint64_t next = 0;
    std::uint64_t subfileType = 0;
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    std::uint64_t bits = 1;
    std::uint64_t compression = 1;
    /// None of the known ones until it is stated.
    std::uint64_t photometric = UINT64_MAX;
    std::uint64_t fillOrder = 1;
    std::uint64_t orientation = 1;
    std::uint64_t samples = 1;
    std::uint64_t rowsPerStrip = UINT32_MAX;
    std::uint64_t planarConfiguration = 1;
    std::uint64_t group4Options = 0;
    std::uint64_t resolutionUnit = 2;
    double xResolution = 0;
    double yResolution = 0;
    bool tiled = false;
    /// Of the strips or tiles: how many there are, whether one of them is empty, and the first.
    std::size_t strips = 0;
    bool hasEmptyStrip = false;
    Extent firstStrip = {};
    /// Whether it holds fields that could change the page, or any that are not well formed.
    bool doubtful = false;
};

/// The directories of the pages in their order. Throws ToolError when one of them, or a strip or
/// tile of its image, does not lie inside the file, or when its tables overlap.
std::vector<TiffDirectory> tiffDirectories(FileBytes &file);
