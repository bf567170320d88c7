#include "pngpage.h"

#include "density.h"
#include "error.h"
#include "metadata.h"
#include "pngdata.h"

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string_view>

#include <zlib.h>

namespace {

constexpr std::size_t signatureSize = 8;
constexpr std::size_t paletteEntry = 3;
constexpr std::size_t pieceSize = std::size_t{256} * 1024;
// An image with a larger text or profile is converted.
constexpr std::uint32_t maxKept = std::uint32_t{4} * 1024 * 1024;

enum ColourType : std::uint8_t { grey = 0, trueColour = 2, indexed = 3 };

std::uint8_t byteIn(const std::string &bytes, std::size_t at)
{
    return static_cast<std::uint8_t>(bytes[at]);
}

// Keywords whose texts ImageMagick interprets: fields of metadata (with a
// colon), a label printed on the page, a density, a whole profile.
bool isPlainKeyword(std::string keyword)
{
    constexpr std::array<std::string_view, 6> meaningful = {"label",   "density", "units",
                                                            "caption", "page",    "colorspace"};
    constexpr std::array<std::string_view, 2> harmless = {"date:", "thumb::"};
    std::transform(keyword.begin(), keyword.end(), keyword.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 'a' - 'A') : letter;
    });
    if (std::any_of(harmless.begin(), harmless.end(),
                    [&keyword](std::string_view start) { return keyword.starts_with(start); }))
        return true;
    return keyword.find(':') == std::string::npos && !keyword.starts_with("raw profile") &&
           std::find(meaningful.begin(), meaningful.end(), keyword) == meaningful.end();
}

// A walk over the chunks. The image data is inflated on the way as long as it may be copied.
class PngWalk
{
public:
    PngWalk(FileBytes &file, Spool &spool)
        : m_file(file)
        , m_spool(spool)
    {
    }

    PngImage image();

private:
    struct ChunkRule
    {
        std::string_view type;
        void (PngWalk::*take)(const std::string &content);
    };
    static const std::array<ChunkRule, 17> rules;

    std::string nextChunk();
    void imageData(std::uint32_t length, unsigned long &sum);
    std::optional<PngIndices> doubtfulIndices() const;
    std::string content(std::uint32_t length, unsigned long &sum);
    void header(const std::string &content);
    void palette(const std::string &content);
    void density(const std::string &content);
    void gamma(const std::string &content);
    void standardColours(const std::string &);
    void profile(const std::string &content);
    void exif(const std::string &content);
    void text(const std::string &content);
    void doubt(const std::string &) { m_doubtful = true; }
    void ignore(const std::string &) {}
    void finish();

    FileBytes &m_file;
    Spool &m_spool;
    CopyablePage m_page;
    std::string m_profile;
    Density m_density;
    std::set<std::string> m_seen;
    std::string m_last;
    std::unique_ptr<PngData> m_data;
    std::uint8_t m_colourType = 0;
    bool m_doubtful = false;
    bool m_hasStandardColours = false;
};

// Chunks of other types are ignored by ImageMagick too, unless they are critical. What it makes of
// these three differs between versions or changes the page: significant bits, offsets, canvases.
const std::array<PngWalk::ChunkRule, 17> PngWalk::rules = {{
    {"IHDR", &PngWalk::header},
    {"PLTE", &PngWalk::palette},
    {"IEND", &PngWalk::ignore},
    {"pHYs", &PngWalk::density},
    {"gAMA", &PngWalk::gamma},
    {"sRGB", &PngWalk::standardColours},
    {"iCCP", &PngWalk::profile},
    {"eXIf", &PngWalk::exif},
    {"tRNS", &PngWalk::doubt},
    {"acTL", &PngWalk::doubt},
    {"sBIT", &PngWalk::doubt},
    {"oFFs", &PngWalk::doubt},
    {"vpAg", &PngWalk::doubt},
    {"caNv", &PngWalk::doubt},
    {"tEXt", &PngWalk::text},
    {"zTXt", &PngWalk::text},
    {"iTXt", &PngWalk::text},
}};

PngImage PngWalk::image()
{
    m_file.seek(signatureSize);
    while (m_last != "IEND")
        m_last = nextChunk();
    if (m_seen.count("IDAT") == 0)
        throw ToolError("the image is damaged: the PNG file holds no image data");
    finish();
    const int orientation = m_page.orientation;
    return {orientation, m_doubtful ? std::nullopt : std::optional(std::move(m_page))};
}

std::string PngWalk::nextChunk()
{
    constexpr std::size_t headSize = 8;
    constexpr std::size_t sumSize = 4;
    constexpr std::uint32_t maxLength = 0x7FFFFFFF;
    const std::string head = m_file.read(headSize);
    const std::uint32_t length = head.size() == headSize ? bigEndian32(head, 0) : 0;
    if (head.size() < headSize || !m_file.has(std::uint64_t{length} + sumSize))
        throw ToolError("the image is incomplete: the PNG file ends before its last chunk");
    std::string type = head.substr(4);
    if (length > maxLength || (m_seen.empty() && type != "IHDR"))
        throw ToolError("the image is damaged: the PNG file has no proper header");
    unsigned long sum =
        crc32(0, reinterpret_cast<const Bytef *>(type.data()), static_cast<uInt>(type.size()));
    const auto *rule = std::find_if(rules.begin(), rules.end(),
                                    [&type](const ChunkRule &known) { return known.type == type; });
    const bool isCritical = (type[0] & 0x20) == 0;
    if (type == "IDAT")
        imageData(length, sum);
    else if (const std::string bytes = content(length, sum); rule != rules.end())
        (this->*rule->take)(bytes);
    else
        m_doubtful |= isCritical;
    const std::string stored = m_file.read(sumSize);
    if (stored.size() < sumSize || bigEndian32(stored, 0) != sum)
        throw ToolError("the image is damaged: a check sum in the PNG file is wrong");
    const bool mayRepeat = type == "IDAT" || type.ends_with("Xt") || rule == rules.end();
    m_doubtful |= !mayRepeat && m_seen.count(type) != 0;
    if (type == "IDAT" || rule != rules.end())
        m_seen.insert(type);
    return type;
}

// The pieces of image data are contiguous; everything before them is complete.
void PngWalk::imageData(std::uint32_t length, unsigned long &sum)
{
    m_doubtful |= m_seen.count("IDAT") != 0 && m_last != "IDAT";
    if (!m_doubtful && !m_data) {
        const std::uint64_t bits = std::uint64_t{m_page.width} *
                                   static_cast<std::uint64_t>(m_page.components) *
                                   static_cast<std::uint64_t>(m_page.bitsPerComponent);
        m_data = std::make_unique<PngData>(m_page.height, (bits + 7) / 8, doubtfulIndices());
    }
    m_doubtful |= m_page.extents.size() >= maxExtents;
    if (length > 0 && !m_doubtful)
        m_page.extents.push_back({m_file.offset(), length});
    for (std::uint32_t left = length; left > 0;) {
        const std::string piece = m_file.read(std::min<std::size_t>(left, pieceSize));
        if (piece.empty())
            return;
        sum = crc32(sum, reinterpret_cast<const Bytef *>(piece.data()),
                    static_cast<uInt>(piece.size()));
        if (m_data && !m_doubtful)
            m_data->add(piece);
        left -= static_cast<std::uint32_t>(piece.size());
    }
}

std::optional<PngIndices> PngWalk::doubtfulIndices() const
{
    const std::size_t colours = m_page.palette.size() / paletteEntry;
    if (colours == 0 || colours == std::size_t{1} << m_page.bitsPerComponent)
        return std::nullopt;
    return PngIndices(m_page.width, m_page.bitsPerComponent, colours);
}

std::string PngWalk::content(std::uint32_t length, unsigned long &sum)
{
    std::string kept;
    for (std::uint32_t left = length; left > 0;) {
        const std::string piece = m_file.read(std::min<std::size_t>(left, pieceSize));
        if (piece.empty())
            break;
        sum = crc32(sum, reinterpret_cast<const Bytef *>(piece.data()),
                    static_cast<uInt>(piece.size()));
        if (length <= maxKept)
            kept += piece;
        left -= static_cast<std::uint32_t>(piece.size());
    }
    m_doubtful |= length > maxKept;
    return kept;
}

void PngWalk::header(const std::string &content)
{
    constexpr std::size_t size = 13;
    constexpr int maxDepth = 8;
    if (content.size() != size)
        throw ToolError("the image is damaged: the PNG file has no proper header");
    m_page.width = bigEndian32(content, 0);
    m_page.height = bigEndian32(content, 4);
    m_page.bitsPerComponent = byteIn(content, 8);
    m_colourType = byteIn(content, 9);
    m_page.components = m_colourType == trueColour ? 3 : 1;
    const int bits = m_page.bitsPerComponent;
    const bool knownDepth =
        bits == maxDepth || (m_colourType != trueColour && (bits == 1 || bits == 2 || bits == 4));
    const bool knownColours =
        m_colourType == grey || m_colourType == trueColour || m_colourType == indexed;
    const bool plain =
        byteIn(content, 10) == 0 && byteIn(content, 11) == 0 && byteIn(content, 12) == 0;
    m_doubtful |= !knownDepth || !knownColours || !plain || m_page.width == 0 ||
                  m_page.height == 0 || m_page.width > maxSide || m_page.height > maxSide;
}

void PngWalk::palette(const std::string &content)
{
    m_doubtful |= m_seen.count("IDAT") != 0;
    if (m_colourType != indexed)
        return;
    const std::size_t entries = content.size() / paletteEntry;
    m_doubtful |= content.size() % paletteEntry != 0 || entries == 0 ||
                  entries > std::size_t{1} << std::min(m_page.bitsPerComponent, 8);
    m_page.palette = content;
}

void PngWalk::density(const std::string &content)
{
    constexpr std::size_t size = 9;
    constexpr double centimetres = 100;
    constexpr std::uint32_t max = 0x7FFFFFFF;
    if (content.size() != size || m_seen.count("IDAT") != 0) {
        m_doubtful = true;
        return;
    }
    const std::uint32_t x = bigEndian32(content, 0);
    const std::uint32_t y = bigEndian32(content, 4);
    const int unit = byteIn(content, 8);
    m_doubtful |= unit > 1 || x > max || y > max;
    m_density = unit == 1 ? Density{x / centimetres, y / centimetres, Density::Unit::Centimetre}
                          : Density{double(x), double(y), Density::Unit::None};
}

// At any other exponent ImageMagick 6.9.11 may take the values for linear ones.
void PngWalk::gamma(const std::string &content)
{
    constexpr std::size_t size = 4;
    constexpr std::uint32_t min = 45000;
    constexpr std::uint32_t max = 46000;
    const std::uint32_t value = content.size() == size ? bigEndian32(content, 0) : 0;
    m_doubtful |= value < min || value > max || m_seen.count("IDAT") != 0;
}

void PngWalk::standardColours(const std::string &)
{
    m_hasStandardColours = true;
}

void PngWalk::profile(const std::string &content)
{
    constexpr std::size_t maxProfile = std::size_t{16} * 1024 * 1024;
    const std::size_t name = content.find('\0');
    if (name == std::string::npos || name + 2 > content.size() || m_seen.count("IDAT") != 0) {
        m_doubtful = true;
        return;
    }
    m_profile = inflated(std::string_view(content).substr(name + 2), maxProfile).value_or("");
    m_doubtful |= !isProfileFor(m_profile, m_page.components);
}

// ImageMagick 7.1.1 takes a density from it and 6.9.11 does not.
void PngWalk::exif(const std::string &content)
{
    const ExifFacts facts = readExif(content);
    m_doubtful |= facts.isDoubtful || facts.density;
    m_page.orientation = facts.orientation;
}

void PngWalk::text(const std::string &content)
{
    m_doubtful |= !isPlainKeyword(content.substr(0, content.find('\0')));
}

void PngWalk::finish()
{
    if (m_doubtful || !m_data || !m_data->isExact()) {
        m_doubtful = true;
        return;
    }
    const bool hasProfile = !m_profile.empty();
    // ImageMagick 6.9.11 writes a profile without components for an image with a palette.
    m_doubtful |= hasProfile && (m_colourType == indexed || m_hasStandardColours);
    m_doubtful |= m_colourType == indexed && m_page.palette.empty();
    if (hasProfile && !m_doubtful)
        m_page.iccProfile = m_spool.add(m_profile);
    m_page.filter = "FlateDecode";
    m_page.decodeParms = {{"/Predictor", "15"},
                          {"/Colors", std::to_string(m_page.components)},
                          {"/BitsPerComponent", std::to_string(m_page.bitsPerComponent)},
                          {"/Columns", std::to_string(m_page.width)}};
    setPageSize(m_page, m_density);
}

} // namespace

PngImage readPngImage(FileBytes &file, Spool &spool)
{
    return PngWalk(file, spool).image();
}
