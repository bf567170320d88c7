#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

/// The PCX format, from ZSoft's "Technical Reference Manual" (revision 5), without Qt.
/// Where that leaves a choice, pixels are those of ImageMagick 6.9.11-60, so that the preview
/// shows what the PDF will.
namespace pcx {

using Bytes = std::span<const std::uint8_t>;

/// A colour as 0xAARRGGBB.
using Colour = std::uint32_t;

inline constexpr std::size_t headerSize = 128;
/// The palette after the lines: a mark, which is not checked, and 256 colours of three bytes.
inline constexpr std::size_t endPaletteSize = 1 + 256 * 3;

/// The content of a valid header. Width and height are in pixels and at least 1; a line of one
/// plane holds the width.
struct Header
{
    int version = 0;
    bool runLength = false;
    int bits = 0; ///< per pixel and plane
    int planes = 0;
    int width = 0;
    int height = 0;
    std::size_t bytesPerLine = 0; ///< of one plane
    std::vector<Colour> palette;  ///< always 16 colours

    /// All planes of one line, one after another.
    std::size_t lineSize() const;
    /// True for pixels that are colours of their own, false for those that index a palette.
    bool hasComponents() const;
    /// True if the colours follow the lines; a file that ends before them cannot be read.
    bool wantsEndPalette() const;
    /// The fewest bytes that the encoded lines can take.
    std::uint64_t smallestDataSize() const;
};

/// The header in the first bytes of a file; nothing if they are no valid PCX header.
std::optional<Header> parseHeader(Bytes bytes);

/// Fills the span as far as it can and returns the number of bytes; 0 at the end.
using Refill = std::function<std::size_t(std::span<std::uint8_t>)>;

/// Decodes the lines of an image, from the first byte after the header.
class LineDecoder
{
public:
    LineDecoder(const Header &header, Refill source);

    /// Decodes the next line into `line`, of `lineSize()` bytes. A run may continue in the next
    /// line. False if the data ends early.
    bool next(std::span<std::uint8_t> line);
    /// True if the last run was longer than the lines read.
    bool hasRunLeft() const;
    /// Copies the bytes that follow the lines; returns how many there were.
    std::size_t takeRaw(std::span<std::uint8_t> bytes);

private:
    bool startRun();
    std::size_t takeRun(std::span<std::uint8_t> line);
    std::size_t takeValues(std::span<std::uint8_t> line);
    std::optional<std::uint8_t> takeByte();

    Refill m_refill;
    bool m_runLength;
    std::vector<std::uint8_t> m_buffer;
    std::size_t m_position = 0;
    std::size_t m_end = 0;
    std::size_t m_runLeft = 0;
    std::uint8_t m_runValue = 0;
};

/// Colours of the indexes of an image without components: as many as there are index values.
/// `endPalette` is what follows the lines: `endPaletteSize` bytes if they are wanted,
/// else nothing. An index beyond the header's 16 colours is black in version 3 and the
/// first colour in the others, as ImageMagick 6.9.11 has it.
std::vector<Colour> colourTable(const Header &header, Bytes endPalette);

/// Palette indexes of one decoded line, for an image without components; `indexes` has the width.
void unpackIndexes(const Header &header, Bytes line, std::span<std::uint8_t> indexes);

/// Colours of one decoded line, for an image with components; `colours` has the width.
void unpackColours(const Header &header, Bytes line, std::span<Colour> colours);

} // namespace pcx
