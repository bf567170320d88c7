#pragma once

#include "pngindices.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <zlib.h>

/// Inflates the image data of a PNG file that is not interlaced, piece by piece and without keeping
/// it, to verify that it is whole. Throws ToolError when it is damaged.
class PngData
{
public:
    /// `indices` are those of an image whose palette has no entry for some.
    PngData(std::uint64_t rows, std::uint64_t rowBytes, std::optional<PngIndices> indices);
    ~PngData();
    PngData(const PngData &) = delete;
    PngData &operator=(const PngData &) = delete;

    void add(std::string_view compressed);
    /// Whether there is nothing behind the last row and no index beyond the palette; throws when
    /// the last row has not come.
    bool isExact() const;

private:
    void check(std::size_t count);

    z_stream m_stream = {};
    std::vector<std::uint8_t> m_output;
    std::uint64_t m_rowSize;
    std::optional<PngIndices> m_indices;
    std::uint64_t m_missing;
    std::uint64_t m_untilFilter = 0;
    bool m_ended = false;
    bool m_exact = true;
};

/// The content of `compressed`, a zlib stream; nothing if it is damaged or longer than `max` bytes.
std::optional<std::string> inflated(std::string_view compressed, std::size_t max);
