#pragma once

#include "copyablepage.h"

/// The density of an image as ImageMagick holds it, updated by each place that states one.
struct Density
{
    enum class Unit { None, Inch, Centimetre };

    double x = 0;
    double y = 0;
    Unit unit = Unit::None;
};

/// ImageMagick's policy refuses an image with a longer side (tools/policy/limits.xml).
constexpr std::uint32_t maxSide = 32000;

/// Sets the size of the page, whose pixels and orientation are known, to what ImageMagick 6.9.11
/// and 7.1.1 write for its pixels at this density.
void setPageSize(CopyablePage &page, const Density &density);
