#include "pcxdecoder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pcx {

namespace {

constexpr std::uint8_t fileMark = 0x0A;
constexpr int maxRun = 63;
constexpr std::uint8_t lowestCount = 0xC0;
constexpr std::size_t bufferSize = 65536;
constexpr std::size_t headerPaletteSize = 16;
constexpr std::size_t headerPaletteAt = 16;
constexpr int blackVersion = 3; // an index beyond the header's colours is black
constexpr int newestVersion = 5;

constexpr Colour opaque = 0xFF000000;
constexpr Colour white = 0xFFFFFFFF;

// Version 1 was never released.
constexpr std::array versions{0, 2, blackVersion, 4, newestVersion};
constexpr std::array pixelBits{1, 2, 4, 8};

template <typename Values>
bool contains(const Values &values, int value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

bool isCount(std::uint8_t byte)
{
    return byte >= lowestCount;
}

int number(Bytes bytes, std::size_t at)
{
    return bytes[at] | bytes[at + 1] << 8;
}

Colour opaqueColour(unsigned red, unsigned green, unsigned blue)
{
    return opaque | red << 16 | green << 8 | blue;
}

std::vector<Colour> readColours(Bytes bytes, std::size_t count)
{
    std::vector<Colour> colours;
    colours.reserve(count);
    for (std::size_t i = 0; i < 3 * count; i += 3)
        colours.push_back(opaqueColour(bytes[i], bytes[i + 1], bytes[i + 2]));
    return colours;
}

bool isReadable(const Header &header)
{
    const bool twoOfEight = header.bits == 8 && header.planes == 2;
    return contains(versions, header.version) && contains(pixelBits, header.bits) &&
           header.planes >= 1 && header.planes <= 4 && !twoOfEight;
}

bool isConsistent(const Header &header)
{
    return header.width > 0 && header.height > 0 &&
           header.bytesPerLine * 8 >=
               static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.bits);
}

int indexBits(const Header &header)
{
    return header.planes == 1 ? header.bits : header.planes;
}

void unpackPacked(int bits, Bytes line, std::span<std::uint8_t> indexes)
{
    const auto width = static_cast<std::size_t>(bits);
    const unsigned mask = (1U << bits) - 1;
    for (std::size_t x = 0; x < indexes.size(); ++x) {
        const std::size_t bit = x * width;
        const std::size_t shift = 8 - width - bit % 8;
        indexes[x] = static_cast<std::uint8_t>(line[bit / 8] >> shift & mask);
    }
}

void addPlane(std::size_t plane, Bytes line, std::span<std::uint8_t> indexes)
{
    for (std::size_t x = 0; x < indexes.size(); ++x) {
        const unsigned bit = line[x / 8] >> (7 - x % 8) & 1U;
        indexes[x] = static_cast<std::uint8_t>(indexes[x] | bit << plane);
    }
}

} // namespace

std::size_t Header::lineSize() const
{
    return bytesPerLine * static_cast<std::size_t>(planes);
}

bool Header::hasComponents() const
{
    return bits == 8 && planes > 1;
}

bool Header::wantsEndPalette() const
{
    // The header's 16 colours serve four bits; only the newest version has a longer palette.
    return version == newestVersion && !hasComponents() && bits * planes > 4;
}

std::uint64_t Header::smallestDataSize() const
{
    const std::uint64_t decoded = std::uint64_t{lineSize()} * static_cast<unsigned>(height);
    return runLength ? decoded / maxRun * 2 : decoded;
}

std::optional<Header> parseHeader(Bytes bytes)
{
    if (bytes.size() < headerSize || bytes[0] != fileMark || bytes[2] > 1)
        return std::nullopt;
    Header header;
    header.version = bytes[1];
    header.runLength = bytes[2] == 1;
    header.bits = bytes[3];
    header.planes = bytes[65];
    header.width = number(bytes, 8) - number(bytes, 4) + 1;
    header.height = number(bytes, 10) - number(bytes, 6) + 1;
    header.bytesPerLine = static_cast<std::size_t>(number(bytes, 66));
    header.palette = readColours(bytes.subspan(headerPaletteAt), headerPaletteSize);
    if (!isReadable(header) || !isConsistent(header))
        return std::nullopt;
    return header;
}

LineDecoder::LineDecoder(const Header &header, Refill source)
    : m_refill(std::move(source))
    , m_runLength(header.runLength)
    , m_buffer(bufferSize)
{
}

bool LineDecoder::next(std::span<std::uint8_t> line)
{
    while (!line.empty()) {
        const std::size_t count = m_runLeft > 0 ? takeRun(line) : takeValues(line);
        line = line.subspan(count);
        if (count == 0 && !startRun())
            return false;
    }
    return true;
}

/// Fills `line` from the run that has begun; returns how far it goes.
std::size_t LineDecoder::takeRun(std::span<std::uint8_t> line)
{
    const std::size_t count = std::min(m_runLeft, line.size());
    std::fill_n(line.begin(), count, m_runValue);
    m_runLeft -= count;
    return count;
}

/// Copies the next values without a count, in a photo most of them; returns how many there were.
std::size_t LineDecoder::takeValues(std::span<std::uint8_t> line)
{
    const Bytes available =
        Bytes(m_buffer).subspan(m_position, std::min(m_end - m_position, line.size()));
    const auto stop =
        m_runLength ? std::find_if(available.begin(), available.end(), isCount) : available.end();
    std::copy(available.begin(), stop, line.begin());
    const auto count = static_cast<std::size_t>(stop - available.begin());
    m_position += count;
    return count;
}

bool LineDecoder::hasRunLeft() const
{
    return m_runLeft > 0;
}

std::size_t LineDecoder::takeRaw(std::span<std::uint8_t> bytes)
{
    std::size_t count = 0;
    for (std::optional<std::uint8_t> byte; count < bytes.size() && (byte = takeByte()); ++count)
        bytes[count] = *byte;
    return count;
}

/// Reads one run: a count with its two top bits set and the value, or a value alone. A count of
/// zero is an empty run.
bool LineDecoder::startRun()
{
    std::optional<std::uint8_t> byte = takeByte();
    m_runLeft = 1;
    if (byte && m_runLength && isCount(*byte)) {
        m_runLeft = *byte & maxRun;
        byte = takeByte();
    }
    m_runValue = byte.value_or(0);
    return byte.has_value();
}

std::optional<std::uint8_t> LineDecoder::takeByte()
{
    if (m_position == m_end) {
        m_position = 0;
        m_end = m_refill(m_buffer);
        if (m_end == 0)
            return std::nullopt;
    }
    return m_buffer[m_position++];
}

std::vector<Colour> colourTable(const Header &header, Bytes endPalette)
{
    const auto count = std::size_t{1} << indexBits(header);
    // One plane of one bit is black and white; its palette is ignored.
    if (count == 2)
        return {white, opaque};
    if (!endPalette.empty())
        return readColours(endPalette.subspan(1), count);
    std::vector<Colour> colours = header.palette;
    colours.resize(count, header.version == blackVersion ? opaque : colours.front());
    return colours;
}

void unpackIndexes(const Header &header, Bytes line, std::span<std::uint8_t> indexes)
{
    if (header.planes == 1) {
        unpackPacked(header.bits, line, indexes);
        return;
    }
    // Several planes have one bit each; the depth in the header is ignored.
    std::fill(indexes.begin(), indexes.end(), std::uint8_t{0});
    for (std::size_t plane = 0; plane < static_cast<std::size_t>(header.planes); ++plane)
        addPlane(plane, line.subspan(plane * header.bytesPerLine), indexes);
}

void unpackColours(const Header &header, Bytes line, std::span<Colour> colours)
{
    const Bytes green = line.subspan(header.bytesPerLine);
    const Bytes blue = green.subspan(header.bytesPerLine);
    for (std::size_t x = 0; x < colours.size(); ++x)
        colours[x] = opaqueColour(line[x], green[x], blue[x]);
    if (header.planes < 4)
        return;
    const Bytes alpha = blue.subspan(header.bytesPerLine);
    for (std::size_t x = 0; x < colours.size(); ++x)
        colours[x] = (colours[x] & ~opaque) | Colour{alpha[x]} << 24;
}

} // namespace pcx
