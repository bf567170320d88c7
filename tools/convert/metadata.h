#pragma once

#include "density.h"

#include <optional>
#include <string>

// What ImageMagick 6.9.11 and 7.1.1 take from the metadata blocks of an image for its page.

struct ExifFacts
{
    /// Of the three fields of density, which override what other blocks state.
    std::optional<Density> density;
    /// From 1 (upright) to 8; 1 as well when the block is broken.
    int orientation = 1;
    /// The two versions differ, or the block is not of the form that writers give it.
    bool isDoubtful = false;
};

/// `block` begins with its byte order mark.
ExifFacts readExif(const std::string &block);

/// The density in Photoshop's resource blocks, from the first "8BIM" on, or the default one;
/// nothing when the two versions differ, or when the blocks are not of the form that writers give
/// them.
std::optional<Density> readPhotoshopDensity(const std::string &blocks);

/// Whether an XMP packet may state a density: the versions of ImageMagick read it differently
/// unless an EXIF block states one too.
bool xmpStatesDensity(const std::string &packet);
/// Whether an XMP packet states one under the names of an EXIF block's fields.
bool xmpOverridesExif(const std::string &packet);

/// Whether `profile` is whole and of a kind that /ICCBased takes for this number of components.
bool isProfileFor(const std::string &profile, int components);
