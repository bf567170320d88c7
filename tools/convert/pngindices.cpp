#include "pngindices.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr unsigned byteBits = 8;

enum Filter : std::uint8_t { none, sub, up, average, paeth };

} // namespace

PngIndices::PngIndices(std::uint32_t width, int bits, std::size_t colours)
    : m_width(width)
    , m_bits(static_cast<unsigned>(bits))
    , m_colours(colours)
    , m_row((std::size_t{width} * m_bits + byteBits - 1) / byteBits)
    , m_at(m_row.size())
{
}

void PngIndices::add(std::uint8_t byte)
{
    if (m_at == m_row.size()) {
        m_filter = byte;
        m_left = m_corner = 0;
        m_at = 0;
        return;
    }
    const std::uint8_t above = m_row[m_at];
    m_left = m_row[m_at] = static_cast<std::uint8_t>(byte + prediction());
    m_corner = above;
    check(m_left);
    ++m_at;
}

std::uint8_t PngIndices::prediction() const
{
    const std::uint8_t above = m_row[m_at];
    switch (m_filter) {
    case sub:
        return m_left;
    case up:
        return above;
    case average:
        return static_cast<std::uint8_t>((m_left + above) / 2);
    case paeth: {
        const int toLeft = std::abs(above - m_corner);
        const int toAbove = std::abs(m_left - m_corner);
        const int toCorner = std::abs(m_left + above - 2 * m_corner);
        if (toLeft <= toAbove && toLeft <= toCorner)
            return m_left;
        return toAbove <= toCorner ? above : m_corner;
    }
    default:
        return 0;
    }
}

// The last byte of a row may hold more bits than there are pixels.
void PngIndices::check(std::uint8_t byte)
{
    const std::size_t perByte = byteBits / m_bits;
    const std::size_t pixels = std::min(perByte, m_width - m_at * perByte);
    for (std::size_t pixel = 0; pixel < pixels; ++pixel) {
        const auto shift = static_cast<unsigned>(byteBits - m_bits * (pixel + 1));
        m_areKnown &= (byte >> shift & ((1U << m_bits) - 1)) < m_colours;
    }
}
