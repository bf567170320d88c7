#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A run of bytes of the image file, or of the spool.
struct Extent
{
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
    bool isSpooled = false;
};

/// A page of more pieces is converted, so that their list stays small.
constexpr std::size_t maxExtents = 1 << 16;

/// A page whose image goes into the PDF as compressed data that is not decoded.
struct CopyablePage
{
    /// Pixels of the image as stored.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// The orientation of the stored image, from 1 (upright) to 8, as in EXIF.
    int orientation = 1;
    /// Points of the upright page, as ImageMagick would make it.
    double pageWidth = 0;
    double pageHeight = 0;
    int bitsPerComponent = 8;
    /// 1 (grey, or an index into the palette) or 3 (red, green, blue).
    int components = 1;
    /// Red, green and blue of each entry of an indexed image, otherwise "".
    std::string palette;
    /// "DCTDecode", "FlateDecode" or "CCITTFaxDecode".
    std::string filter;
    /// Keys of /DecodeParms, with their slash, and values as a PDF spells them; empty for none.
    std::vector<std::pair<std::string, std::string>> decodeParms;
    /// Whether 0 is white: /Decode [1 0].
    bool inverted = false;
    /// The profile of /ICCBased, with as many components as the image, in the spool.
    std::optional<Extent> iccProfile;
    /// One after the other they are the stream. No byte of them is metadata.
    std::vector<Extent> extents;
};

/// Whether this orientation swaps width and height.
constexpr bool swapsSides(int orientation)
{
    return orientation > 4;
}

/// The compressions of pages that are copied, and all others.
enum class Compression { Jpeg, Zip, Group4, Other };
