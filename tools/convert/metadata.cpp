#include "metadata.h"

#include "filebytes.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace {

constexpr std::uint16_t tagOrientation = 0x0112;
constexpr std::uint16_t tagXResolution = 0x011A;
constexpr std::uint16_t tagYResolution = 0x011B;
constexpr std::uint16_t tagResolutionUnit = 0x0128;
constexpr std::array<std::uint16_t, 3> directoryTags = {0x8769, 0x8825, 0xA005};

constexpr std::uint16_t typeShort = 3;
constexpr std::uint16_t typeRational = 5;
constexpr std::array<std::uint32_t, 13> typeSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
constexpr std::size_t entrySize = 12;

int orientationOf(std::uint32_t value)
{
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 1;
}

// The directories of an EXIF block. Entries that ImageMagick gives up at make it doubtful.
class Exif
{
public:
    explicit Exif(const std::string &block)
        : m_block(block)
        , m_littleEndian(block.starts_with("II"))
    {
    }

    ExifFacts read()
    {
        if (!readDirectories())
            return {std::nullopt, m_orientation, true};
        return facts();
    }

private:
    bool has(std::size_t at, std::size_t count) const
    {
        return at <= m_block.size() && count <= m_block.size() - at;
    }

    std::uint32_t byteAt(std::size_t at) const { return static_cast<std::uint8_t>(m_block[at]); }

    std::uint32_t number16(std::size_t at) const
    {
        const std::size_t high = m_littleEndian ? at + 1 : at;
        const std::size_t low = m_littleEndian ? at : at + 1;
        return byteAt(high) << 8 | byteAt(low);
    }

    std::uint32_t number32(std::size_t at) const
    {
        const std::size_t high = m_littleEndian ? at + 2 : at;
        const std::size_t low = m_littleEndian ? at : at + 2;
        return number16(high) << 16 | number16(low);
    }

    bool readDirectories()
    {
        if (!m_block.starts_with(std::string_view("II*\0", 4)) &&
            !m_block.starts_with(std::string_view("MM\0*", 4)))
            return false;
        if (!has(0, 8) || !readDirectory(number32(4), true))
            return false;
        for (std::size_t next = 0; next < m_further.size(); ++next)
            if (!readDirectory(m_further[next], false))
                return false;
        return true;
    }

    bool readDirectory(std::size_t at, bool isFirst)
    {
        constexpr std::size_t maxDirectories = 8;
        if (!has(at, 2))
            return false;
        const std::size_t count = number16(at);
        const std::size_t end = at + 2 + count * entrySize;
        if (!has(at + 2, count * entrySize))
            return false;
        for (std::size_t entry = at + 2; entry < end; entry += entrySize)
            if (!readEntry(entry, isFirst))
                return false;
        if (has(end, 4) && number32(end) != 0)
            m_further.push_back(number32(end));
        return m_further.size() <= maxDirectories;
    }

    bool readEntry(std::size_t at, bool isFirst)
    {
        const auto tag = static_cast<std::uint16_t>(number16(at));
        const std::uint32_t type = number16(at + 2);
        const std::uint64_t count = number32(at + 4);
        if (type == 0 || type >= typeSizes.size())
            return false;
        if (std::find(directoryTags.begin(), directoryTags.end(), tag) != directoryTags.end())
            m_further.push_back(number32(at + 8));
        if (tag == tagOrientation && isFirst && type == typeShort && count == 1)
            m_orientation = orientationOf(number16(at + 8));
        if (tag != tagXResolution && tag != tagYResolution && tag != tagResolutionUnit)
            return true;
        if (!isFirst) {
            m_statedElsewhere = true;
            return true;
        }
        // Entries after a pointer to another directory are read after that directory.
        return count == 1 && m_further.empty() && readField(at, tag, type);
    }

    bool readField(std::size_t at, std::uint16_t tag, std::uint32_t type)
    {
        if (tag == tagResolutionUnit) {
            m_unit = number16(at + 8);
            return type == typeShort;
        }
        const std::size_t value = number32(at + 8);
        if (type != typeRational || !has(value, 8) || number32(value + 4) == 0)
            return false;
        (tag == tagXResolution ? m_x : m_y) =
            double{static_cast<double>(number32(value))} / number32(value + 4);
        return true;
    }

    ExifFacts facts() const
    {
        constexpr std::array units = {Density::Unit::None, Density::Unit::Inch,
                                      Density::Unit::Centimetre};
        if (!m_x && !m_y && !m_unit)
            return {std::nullopt, m_orientation, m_statedElsewhere};
        if (!m_x || !m_y || !m_unit || *m_unit < 1 || *m_unit > units.size())
            return {std::nullopt, m_orientation, true};
        return {Density{*m_x, *m_y, units[*m_unit - 1]}, m_orientation, false};
    }

    const std::string &m_block;
    bool m_littleEndian;
    int m_orientation = 1;
    std::vector<std::size_t> m_further;
    std::optional<double> m_x;
    std::optional<double> m_y;
    std::optional<std::uint32_t> m_unit;
    bool m_statedElsewhere = false;
};

constexpr std::uint16_t resourceResolution = 0x03ED;
// Resources that hold an EXIF block or a colour profile of their own.
constexpr std::array<std::uint16_t, 2> doubtfulResources = {0x0422, 0x040F};
constexpr std::uint16_t resourceXmp = 0x0424;
constexpr std::size_t resolutionSize = 16;

Density resolutionResource(const std::string &blocks, std::size_t at)
{
    constexpr double fixedPoint = 65536;
    constexpr double centimetresPerInch = 2.54;
    constexpr std::uint16_t perCentimetre = 2;
    Density density = {bigEndian32(blocks, at) / fixedPoint,
                       bigEndian32(blocks, at + 8) / fixedPoint, Density::Unit::Inch};
    // The numbers are per inch, independent of the display unit.
    if (bigEndian16(blocks, at + 4) == perCentimetre)
        density = {density.x / centimetresPerInch, density.y / centimetresPerInch,
                   Density::Unit::Centimetre};
    return density;
}

} // namespace

ExifFacts readExif(const std::string &block)
{
    return Exif(block).read();
}

std::optional<Density> readPhotoshopDensity(const std::string &blocks)
{
    constexpr std::size_t minBlock = 12;
    Density density;
    std::size_t at = 0;
    while (at + minBlock <= blocks.size()) {
        if (blocks.compare(at, 4, "8BIM") != 0)
            return std::nullopt;
        const std::uint16_t id = bigEndian16(blocks, at + 4);
        // A name that with its length fills an even number of bytes.
        const std::size_t named = static_cast<std::uint8_t>(blocks[at + 6]);
        const std::size_t name = (named + 2) / 2 * 2;
        const std::size_t length = at + 6 + name;
        if (length + 4 > blocks.size())
            return std::nullopt;
        const std::size_t count = bigEndian32(blocks, length);
        const std::size_t value = length + 4;
        if (count > blocks.size() - value || (id == resourceResolution && count != resolutionSize))
            return std::nullopt;
        if (id == resourceResolution)
            density = resolutionResource(blocks, value);
        if (std::find(doubtfulResources.begin(), doubtfulResources.end(), id) !=
            doubtfulResources.end())
            return std::nullopt;
        if (id == resourceXmp && xmpStatesDensity(blocks.substr(value, count)))
            return std::nullopt;
        at = value + count + count % 2;
    }
    return density;
}

bool xmpStatesDensity(const std::string &packet)
{
    return packet.find("Resolution") != std::string::npos;
}

bool xmpOverridesExif(const std::string &packet)
{
    constexpr std::array<std::string_view, 3> names = {"exif:XResolution", "exif:YResolution",
                                                       "exif:ResolutionUnit"};
    return std::any_of(names.begin(), names.end(), [&packet](std::string_view name) {
        return packet.find(name) != std::string::npos;
    });
}

bool isProfileFor(const std::string &profile, int components)
{
    // ICC.1:2010, 7.2: the header with its size, class, colour space and signature.
    constexpr std::size_t headerSize = 128;
    constexpr std::array<std::string_view, 4> classes = {"scnr", "mntr", "prtr", "spac"};
    if (profile.size() < headerSize || bigEndian32(profile, 0) != profile.size())
        return false;
    const std::string_view header(profile);
    return std::find(classes.begin(), classes.end(), header.substr(12, 4)) != classes.end() &&
           header.substr(16, 4) == (components == 1 ? "GRAY" : "RGB ") &&
           header.substr(36, 4) == "acsp";
}
