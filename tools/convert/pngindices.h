#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Undoes the filters of an indexed PNG image's rows, byte by byte, to find indices that its
/// palette has no entry for.
class PngIndices
{
public:
    /// `bits` of each index: 1, 2, 4 or 8; `colours` in the palette.
    PngIndices(std::uint32_t width, int bits, std::size_t colours);

    /// The next byte of the inflated rows, of which each begins with its filter, 0 to 4.
    void add(std::uint8_t byte);
    /// Whether all indices so far are in the palette.
    bool areKnown() const { return m_areKnown; }

private:
    std::uint8_t prediction() const;
    void check(std::uint8_t byte);

    std::uint32_t m_width;
    unsigned m_bits;
    std::size_t m_colours;
    /// Bytes of this row up to m_at, of the row above from there on.
    std::vector<std::uint8_t> m_row;
    std::size_t m_at;
    std::uint8_t m_filter = 0;
    std::uint8_t m_left = 0;
    /// The byte above m_left.
    std::uint8_t m_corner = 0;
    bool m_areKnown = true;
};
