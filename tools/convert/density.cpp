#include "density.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace {

constexpr double pointsPerInch = 72;

// ImageMagick rounds dots per inch to hundredths where it computes them from centimetres.
double perInch(double density, Density::Unit unit)
{
    constexpr double centimetresPerInch = 2.54;
    if (unit != Density::Unit::Centimetre)
        return density;
    return std::floor(100.0 * centimetresPerInch * density + 0.5) / 100.0;
}

// It does not divide by a number closer to zero than this.
double reciprocal(double value)
{
    constexpr double smallest = 1.0e-12;
    return 1.0 / std::max(value, smallest);
}

// As printf's "%g" in the C locale.
double asWritten(double value)
{
    constexpr int digits = 6;
    std::array<char, 32> text = {};
    const auto end =
        std::to_chars(text.begin(), text.end(), value, std::chars_format::general, digits);
    double written = 0;
    std::from_chars(text.begin(), end.ptr, written);
    return written;
}

double side(std::uint32_t pixels, double density, Density::Unit unit)
{
    return asWritten(pointsPerInch * pixels * reciprocal(perInch(density, unit)));
}

} // namespace

void setPageSize(CopyablePage &page, const Density &density)
{
    const bool known = density.x != 0 && density.y != 0;
    page.pageWidth = side(page.width, known ? density.x : pointsPerInch, density.unit);
    page.pageHeight = side(page.height, known ? density.y : pointsPerInch, density.unit);
    if (swapsSides(page.orientation))
        std::swap(page.pageWidth, page.pageHeight);
}
