#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A run of bytes of the image file.
struct Extent
{
    std::uint64_t offset;
    std::uint64_t length;

    bool operator==(const Extent &other) const
    {
        return offset == other.offset && length == other.length;
    }
};

/// A page whose image goes into the PDF as its compressed data stands.
struct CopyablePage
{
    /// Pixels of the image as stored.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// Points, as ImageMagick would make the page.
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
    /// The profile of /ICCBased, with as many components as the image; "" for none.
    std::string iccProfile;
    /// One after the other they are the stream.
    std::vector<Extent> extents;
    /// The stream itself, used instead of the extents when not empty.
    std::string data;
};

/// The compression that the command line asks for.
enum class Compression { Unset, Jpeg, Zip, Group4, Other };

/// The pages of the image in the descriptor `file`, a regular file, or nothing when ImageMagick has
/// to convert it. No byte of what is copied is metadata. Moves no file offset. Throws ToolError
/// when a JPEG, PNG or TIFF file is incomplete or damaged, whatever is asked for.
std::optional<std::vector<CopyablePage>> copyablePages(int file, Compression asked);
