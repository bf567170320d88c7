#pragma once

#include "copyablepage.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

/// A segment of quantization tables in a JPEG file.
struct QuantizationSegment
{
    /// From its marker on.
    Extent extent;
    /// What follows its length.
    std::string content;
};

/// The segment, with its marker, with those of its tables alone whose numbers are in `used`: ""
/// when there are none. Nothing when it is malformed.
std::optional<std::string> withUsedTables(const QuantizationSegment &segment,
                                          const std::set<int> &used);

/// Replaces the bytes `part`, which are in one of `extents`, by `replacement` or removes them.
void replacePart(std::vector<Extent> &extents, const Extent &part,
                 const std::optional<Extent> &replacement);
