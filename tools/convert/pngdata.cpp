#include "pngdata.h"

#include "error.h"

#include <algorithm>
#include <new>
#include <utility>

namespace {

constexpr std::size_t outputSize = std::size_t{64} * 1024;
constexpr std::uint8_t lastFilter = 4;

// zlib reads through a pointer that is not const.
Bytef *input(std::string_view bytes)
{
    return reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
}

[[noreturn]] void damaged()
{
    throw ToolError("the image is damaged: the image data of the PNG file cannot be read");
}

} // namespace

PngData::PngData(std::uint64_t rows, std::uint64_t rowBytes, std::optional<PngIndices> indices)
    : m_output(outputSize)
    , m_rowSize(rowBytes + 1)
    , m_indices(std::move(indices))
    , m_missing(rows * m_rowSize)
{
    if (inflateInit(&m_stream) != Z_OK)
        throw std::bad_alloc();
}

PngData::~PngData()
{
    inflateEnd(&m_stream);
}

void PngData::add(std::string_view compressed)
{
    m_stream.next_in = input(compressed);
    m_stream.avail_in = static_cast<uInt>(compressed.size());
    while (m_stream.avail_in > 0 && !m_ended && m_exact) {
        m_stream.next_out = m_output.data();
        m_stream.avail_out = static_cast<uInt>(m_output.size());
        const int status = inflate(&m_stream, Z_NO_FLUSH);
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR)
            damaged();
        m_ended = status == Z_STREAM_END;
        check(m_output.size() - m_stream.avail_out);
    }
    m_exact &= m_stream.avail_in == 0;
}

// Each row begins with the number of its filter.
void PngData::check(std::size_t count)
{
    m_exact &= count <= m_missing;
    const std::uint64_t used = std::min<std::uint64_t>(count, m_missing);
    std::uint64_t at = m_untilFilter;
    for (; at < used; at += m_rowSize)
        if (m_output[static_cast<std::size_t>(at)] > lastFilter)
            damaged();
    for (std::uint64_t place = 0; m_indices && place < used; ++place)
        m_indices->add(m_output[static_cast<std::size_t>(place)]);
    m_untilFilter = at - used;
    m_missing -= used;
}

bool PngData::isExact() const
{
    if (m_missing > 0)
        throw ToolError("the image is incomplete: rows are missing in the PNG file");
    return m_exact && m_ended && (!m_indices || m_indices->areKnown());
}

std::optional<std::string> inflated(std::string_view compressed, std::size_t max)
{
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        throw std::bad_alloc();
    stream.next_in = input(compressed);
    stream.avail_in = static_cast<uInt>(compressed.size());
    std::string result;
    // Growing it in steps would take three times the memory.
    result.reserve(max + outputSize);
    int status = Z_OK;
    while (status == Z_OK && result.size() <= max) {
        const std::size_t before = result.size();
        result.resize(before + outputSize);
        stream.next_out = reinterpret_cast<Bytef *>(result.data()) + before;
        stream.avail_out = outputSize;
        status = inflate(&stream, Z_NO_FLUSH);
        result.resize(result.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    if (status != Z_STREAM_END || result.size() > max)
        return std::nullopt;
    return result;
}
