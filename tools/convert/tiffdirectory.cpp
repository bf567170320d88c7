#include "tiffdirectory.h"

#include "error.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace {

// Sizes of the field types; the others are no numbers that are wanted here.
std::size_t typeSize(std::uint64_t type)
{
    constexpr std::array<std::uint8_t, 19> sizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                    8, 4, 8, 4, 0, 0, 8, 8, 8};
    return type < sizes.size() ? sizes[static_cast<std::size_t>(type)] : 0;
}

enum Type : std::uint64_t {
    byteType = 1,
    shortType = 3,
    longType = 4,
    rationalType = 5,
    long8Type = 16
};

struct NumberField
{
    std::uint64_t tag;
    std::uint64_t TiffDirectory::*member;
};

constexpr std::array<NumberField, 13> numberFields = {{
    {254, &TiffDirectory::subfileType},
    {256, &TiffDirectory::width},
    {257, &TiffDirectory::height},
    {258, &TiffDirectory::bits},
    {259, &TiffDirectory::compression},
    {262, &TiffDirectory::photometric},
    {266, &TiffDirectory::fillOrder},
    {274, &TiffDirectory::orientation},
    {277, &TiffDirectory::samples},
    {278, &TiffDirectory::rowsPerStrip},
    {284, &TiffDirectory::planarConfiguration},
    {293, &TiffDirectory::group4Options},
    {296, &TiffDirectory::resolutionUnit},
}};

// Thresholding, names, descriptions, least and greatest sample, date, page number, copyright and
// the like: nothing that ImageMagick makes the page from.
constexpr std::array<std::uint64_t, 16> harmlessTags = {263, 264, 265, 269, 270, 271, 272, 280,
                                                        281, 297, 305, 306, 315, 316, 326, 33432};

// Tiles of 32 pixels in an image as large as the policy allows; further ones are not verified.
constexpr std::uint64_t maxStrips = std::uint64_t{maxSide / 32} * (maxSide / 32);

enum Tag : std::uint64_t {
    stripOffsets = 273,
    stripByteCounts = 279,
    xResolution = 282,
    yResolution = 283,
    tileOffsets = 324,
    tileByteCounts = 325,
};

[[noreturn]] void incomplete(const char *what)
{
    throw ToolError(std::string("the image is incomplete: ") + what +
                    " of the TIFF file lies beyond its end");
}

class TiffWalk
{
public:
    explicit TiffWalk(FileBytes &file)
        : m_file(file)
    {
    }

    std::vector<TiffDirectory> walk();

private:
    struct Field
    {
        std::uint64_t tag;
        std::uint64_t type;
        std::uint64_t count;
        std::uint64_t value;
    };

    std::string at(std::uint64_t offset, std::uint64_t count, const char *what);
    std::uint64_t number(const std::string &bytes, std::size_t at, std::size_t size) const;
    TiffDirectory directory(std::uint64_t offset);
    void take(const Field &field, TiffDirectory &directory);
    std::optional<std::vector<std::uint64_t>> numbers(const Field &field, std::uint64_t max);
    std::optional<double> rational(const Field &field);
    void takeStrips(TiffDirectory &directory);
    void requireRoom(std::uint64_t bytes);

    FileBytes &m_file;
    std::uint64_t m_tableBytes = 0;
    std::vector<std::uint64_t> m_offsets;
    std::vector<std::uint64_t> m_counts;
    bool m_littleEndian = true;
    bool m_big = false;
};

std::string TiffWalk::at(std::uint64_t offset, std::uint64_t count, const char *what)
{
    m_file.seek(offset);
    if (!m_file.has(count))
        incomplete(what);
    return m_file.read(static_cast<std::size_t>(count));
}

std::uint64_t TiffWalk::number(const std::string &bytes, std::size_t at, std::size_t size) const
{
    std::uint64_t result = 0;
    for (std::size_t place = 0; place < size; ++place) {
        const std::size_t from = m_littleEndian ? at + size - 1 - place : at + place;
        result = result << 8 | static_cast<std::uint8_t>(bytes.at(from));
    }
    return result;
}

std::vector<TiffDirectory> TiffWalk::walk()
{
    constexpr std::uint64_t bigVersion = 43;
    constexpr std::size_t maxDirectories = 65535;
    const std::string head = at(0, 8, "the header");
    m_littleEndian = head[0] == 'I';
    m_big = number(head, 2, 2) == bigVersion;
    std::uint64_t offset = m_big ? number(at(8, 8, "the header"), 0, 8) : number(head, 4, 4);
    std::vector<TiffDirectory> directories;
    std::set<std::uint64_t> seen;
    while (offset != 0 && directories.size() < maxDirectories && seen.insert(offset).second) {
        directories.push_back(directory(offset));
        offset = directories.back().next;
    }
    if (directories.empty())
        throw ToolError("the image is damaged: the TIFF file holds no page");
    directories.back().doubtful |= offset != 0;
    return directories;
}

TiffDirectory TiffWalk::directory(std::uint64_t offset)
{
    constexpr std::uint64_t maxFields = 4096;
    const std::size_t countSize = m_big ? 8 : 2;
    const std::size_t numberSize = m_big ? 8 : 4;
    const std::size_t fieldSize = 4 + 2 * numberSize;
    const char *what = "a directory";
    TiffDirectory result;
    result.offset = offset;
    const std::uint64_t count = number(at(offset, countSize, what), 0, countSize);
    if (count > maxFields)
        throw ToolError("the image is damaged: a directory of the TIFF file is no directory");
    const std::string bytes = at(offset + countSize, count * fieldSize + numberSize, what);
    requireRoom(bytes.size());
    m_offsets.clear();
    m_counts.clear();
    std::uint64_t before = 0;
    for (std::size_t place = 0; place + fieldSize <= bytes.size(); place += fieldSize) {
        Field field = {number(bytes, place, 2), number(bytes, place + 2, 2),
                       number(bytes, place + 4, numberSize), 0};
        const bool fits =
            field.count <= numberSize / std::max<std::size_t>(typeSize(field.type), 1);
        const std::uint64_t inPlace = offset + countSize + place + 4 + numberSize;
        field.value = fits ? inPlace : number(bytes, place + 4 + numberSize, numberSize);
        result.doubtful |= field.tag <= before;
        before = field.tag;
        take(field, result);
    }
    result.next = number(bytes, static_cast<std::size_t>(count) * fieldSize, numberSize);
    takeStrips(result);
    return result;
}

void TiffWalk::take(const Field &field, TiffDirectory &directory)
{
    const auto *known =
        std::find_if(numberFields.begin(), numberFields.end(),
                     [&field](const NumberField &number) { return number.tag == field.tag; });
    if (known != numberFields.end()) {
        const auto values = numbers(field, 1);
        directory.doubtful |= !values || field.count != 1;
        if (values && !values->empty())
            directory.*known->member = values->front();
    } else if (field.tag == stripOffsets || field.tag == tileOffsets) {
        directory.tiled |= field.tag == tileOffsets;
        m_offsets = numbers(field, maxStrips).value_or(m_offsets);
    } else if (field.tag == stripByteCounts || field.tag == tileByteCounts) {
        m_counts = numbers(field, maxStrips).value_or(m_counts);
    } else if (field.tag == xResolution || field.tag == yResolution) {
        const std::optional<double> value = rational(field);
        directory.doubtful |= !value;
        (field.tag == xResolution ? directory.xResolution : directory.yResolution) =
            value.value_or(0);
    } else {
        directory.doubtful |=
            std::find(harmlessTags.begin(), harmlessTags.end(), field.tag) == harmlessTags.end();
    }
}

std::optional<std::vector<std::uint64_t>> TiffWalk::numbers(const Field &field, std::uint64_t max)
{
    if (field.type != byteType && field.type != shortType && field.type != longType &&
        field.type != long8Type)
        return std::nullopt;
    const std::size_t size = std::max<std::size_t>(typeSize(field.type), 1);
    if (field.count > m_file.size() / size)
        incomplete("a field");
    m_file.seek(field.value);
    if (!m_file.has(field.count * size))
        incomplete("a field");
    const std::string bytes = m_file.read(std::min(field.count, max) * size);
    // What fits into a field is counted with its directory.
    if (bytes.size() > sizeof(std::uint64_t))
        requireRoom(bytes.size());
    std::vector<std::uint64_t> result;
    for (std::size_t place = 0; place + size <= bytes.size(); place += size)
        result.push_back(number(bytes, place, size));
    return result;
}

// libtiff hands it to ImageMagick in single precision.
std::optional<double> TiffWalk::rational(const Field &field)
{
    if (field.type != rationalType || field.count != 1)
        return std::nullopt;
    const std::string bytes = at(field.value, 8, "a field");
    const auto numerator = static_cast<double>(number(bytes, 0, 4));
    const auto denominator = static_cast<double>(number(bytes, 4, 4));
    if (denominator == 0)
        return std::nullopt;
    return static_cast<float>(numerator / denominator);
}

// Not where libtiff works out the place itself: an only strip without compression, and the old
// form of JPEG, which has its own fields.
void TiffWalk::takeStrips(TiffDirectory &directory)
{
    constexpr std::uint64_t notCompressed = 1;
    constexpr std::uint64_t oldJpeg = 6;
    const bool estimated = directory.compression == notCompressed && m_offsets.size() == 1;
    directory.strips = m_offsets.size() == m_counts.size() ? m_offsets.size() : 0;
    directory.hasEmptyStrip = std::ranges::find(m_counts, 0U) != m_counts.end();
    if (directory.strips > 0)
        directory.firstStrip = {m_offsets.front(), m_counts.front()};
    if (directory.compression == oldJpeg)
        return;
    const std::size_t strips = std::min(m_offsets.size(), m_counts.size());
    for (std::size_t strip = 0; strip < strips; ++strip) {
        const std::uint64_t offset = m_offsets[strip];
        const std::uint64_t count = estimated ? 1 : m_counts[strip];
        if (offset > m_file.size() || count > m_file.size() - offset)
            incomplete("a strip");
    }
}

// The tables of a file lie beside each other. Many directories that share one would take time and
// memory without end.
void TiffWalk::requireRoom(std::uint64_t bytes)
{
    m_tableBytes += bytes;
    if (m_tableBytes > m_file.size())
        throw ToolError("the image is damaged: tables of the TIFF file overlap");
}

} // namespace

std::vector<TiffDirectory> tiffDirectories(FileBytes &file)
{
    return TiffWalk(file).walk();
}
