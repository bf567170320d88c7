#pragma once

#include "density.h"

#include <string>

// What ImageMagick 6.9.11 and 7.1.1 take from a picture's metadata blocks for its page. Each
// returns false where the two versions differ, or where the block is not of the form that writers
// give it.

/// An EXIF block, from its byte order mark on: its three fields of density override what held.
bool takeExif(const std::string &block, Density &density);

/// Photoshop's resource blocks, from the first "8BIM" on.
bool takePhotoshop(const std::string &blocks, Density &density);

/// Whether an XMP packet may state a density: ImageMagick reads it, but not alike in both versions
/// unless an EXIF block states one too.
bool xmpStatesDensity(const std::string &packet);
/// Whether an XMP packet states one under the names of an EXIF block's fields.
bool xmpOverridesExif(const std::string &packet);

/// Whether `profile` is whole and of a kind that /ICCBased takes for this number of components.
bool isProfileFor(const std::string &profile, int components);
