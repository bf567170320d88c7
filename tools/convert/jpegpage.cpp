#include "jpegpage.h"

#include "density.h"
#include "error.h"
#include "jpegmarkers.h"
#include "jpegtables.h"
#include "metadata.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace {

constexpr std::string_view jfif("JFIF\0", 5);
constexpr std::string_view exif("Exif\0\0", 6);
constexpr std::string_view iccProfile("ICC_PROFILE\0", 12);
constexpr std::string_view photoshop("Photoshop 3.0\0", 14);
constexpr std::string_view adobe("Adobe", 5);

// A progressive image needs some ten; a viewer decodes the whole image for each.
constexpr int maxScans = 100;

// A progressive image may have other tables for each scan.
constexpr std::size_t maxQuantizationSegments = 64;

std::uint8_t byteIn(const std::string &bytes, std::size_t at)
{
    return static_cast<std::uint8_t>(bytes[at]);
}

bool isFrame(int marker)
{
    return marker >= baseline && marker <= 0xCF && marker != huffmanTables && marker != 0xC8 &&
           marker != 0xCC;
}

// As ImageMagick compares: without regard to case.
bool isPhotoshop(const std::string &bytes)
{
    constexpr std::string_view word = "photoshop ";
    const auto sameLetter = [](char one, char other) { return (one | 0x20) == other; };
    return bytes.size() >= word.size() &&
           std::equal(bytes.begin(), bytes.begin() + word.size(), word.begin(), sameLetter);
}

bool isFactor(int factor)
{
    return factor == 1 || factor == 2 || factor == 4;
}

// A walk over the markers. Segments that decoding needs become extents, all others are left out.
class JpegWalk
{
public:
    JpegWalk(FileBytes &file, Spool &spool)
        : m_file(file)
        , m_spool(spool)
    {
    }

    JpegImage image();

private:
    int nextMarker();
    int markerAfterScan();
    void segment(int marker);
    void payload(int marker, const std::string &bytes);
    void frame(const std::string &bytes);
    void takeJfif(const std::string &bytes);
    void takeApplication1(const std::string &bytes);
    void takeProfilePart(const std::string &bytes);
    void takeAdobe(const std::string &bytes);
    bool coloursAreCertain() const;
    Density density();
    void finish();
    void dropUnusedTables();
    void keep(std::uint64_t from);

    FileBytes &m_file;
    Spool &m_spool;
    CopyablePage m_page;
    std::string m_profile;
    // The payloads that state a density.
    std::optional<Density> m_photoshop;
    std::optional<std::string> m_jfif;
    std::optional<ExifFacts> m_exif;
    bool m_xmpStatesDensity = false;
    std::uint64_t m_markerStart = 0;
    bool m_doubtful = false;
    bool m_hasFrame = false;
    bool m_hasHuffmanTable = false;
    bool m_isProgressive = false;
    std::optional<int> m_adobeTransform;
    std::string m_componentIds;
    std::vector<QuantizationSegment> m_quantization;
    std::set<int> m_usedTables;
    int m_scans = 0;
    int m_scannedComponents = 0;
    int m_profileParts = 0;
    int m_profilePartsPromised = 0;
};

JpegImage JpegWalk::image()
{
    nextMarker();
    keep(m_markerStart);
    int marker = nextMarker();
    while (marker != endOfImage) {
        // JPEG-LS hides other bytes than JPEG does: its scans cannot be walked over.
        if (marker == losslessLs)
            return {{}, m_page.orientation, {}};
        segment(marker);
        marker = marker == startOfScan ? markerAfterScan() : nextMarker();
    }
    if (!m_hasFrame || m_scans == 0)
        throw ToolError("the image is damaged: the JPEG file holds no image data");
    keep(m_markerStart);
    finish();
    const PixelSize size = {m_page.width, m_page.height};
    return {size, m_page.orientation, m_doubtful ? std::nullopt : std::optional(std::move(m_page))};
}

// Leaves out fill bytes; decoders skip other bytes between segments and warn.
int JpegWalk::nextMarker()
{
    std::uint64_t expected = m_file.offset();
    while (m_file.find(0xFF)) {
        m_doubtful |= m_file.offset() != expected;
        std::optional<std::uint8_t> code;
        do {
            m_markerStart = m_file.offset();
            m_file.skip(1);
            code = m_file.byte();
            m_file.seek(m_markerStart + 1);
        } while (code == 0xFF);
        m_file.skip(1);
        if (code && *code != 0)
            return *code;
        expected = m_markerStart;
    }
    throw ToolError("the image is incomplete: the JPEG file ends before its end marker");
}

int JpegWalk::markerAfterScan()
{
    while (m_file.find(0xFF)) {
        m_markerStart = m_file.offset();
        m_file.skip(1);
        const int code = m_file.byte().value_or(0);
        if (code == 0xFF)
            m_file.seek(m_markerStart + 1);
        else if (code != 0 && (code < firstRestart || code > lastRestart)) {
            m_page.extents.back().length = m_markerStart - m_page.extents.back().offset;
            return code;
        }
    }
    throw ToolError("the image is incomplete: the JPEG file ends before its end marker");
}

void JpegWalk::segment(int marker)
{
    constexpr int temporary = 0x01;
    if (marker == temporary || (marker >= firstRestart && marker <= startOfImage)) {
        m_doubtful = true;
        return;
    }
    const std::uint64_t start = m_markerStart;
    const std::string length = m_file.read(2);
    const std::size_t size = length.size() == 2 ? bigEndian16(length, 0) : 0;
    if (length.size() == 2 && size < 2)
        throw ToolError("the image is damaged: a JPEG segment has no length");
    if (length.size() < 2 || !m_file.has(size - 2))
        throw ToolError("the image is incomplete: the JPEG file ends inside a segment");
    const std::uint64_t end = m_file.offset() + size - 2;
    const std::string bytes = marker == comment ? std::string() : m_file.read(size - 2);
    payload(marker, bytes);
    m_file.seek(end);
    if (marker == quantization) {
        m_doubtful |= m_quantization.size() >= maxQuantizationSegments;
        if (!m_doubtful)
            m_quantization.push_back({{start, end - start}, bytes});
    }
    const bool isMetadata =
        marker == comment || (marker >= application0 && marker <= application15);
    if (!isMetadata || (marker == application14 && m_adobeTransform))
        keep(start);
}

void JpegWalk::payload(int marker, const std::string &bytes)
{
    const bool isApplication = marker >= application0 && marker <= application15;
    // Inside the image data ImageMagick reads them at another time.
    if (isApplication && m_scans > 0)
        m_doubtful = true;
    if (isFrame(marker)) {
        m_doubtful |= m_hasFrame || (marker != baseline && marker != progressive);
        m_isProgressive = marker == progressive;
        frame(bytes);
    } else if (marker == startOfScan) {
        m_doubtful |= !m_hasFrame || ++m_scans > maxScans;
        m_scannedComponents += bytes.empty() ? 0 : byteIn(bytes, 0);
    } else if (marker == application0) {
        takeJfif(bytes);
    } else if (marker == application1) {
        takeApplication1(bytes);
    } else if (marker == application2) {
        takeProfilePart(bytes);
    } else if (marker == application13 && isPhotoshop(bytes)) {
        m_doubtful |= m_photoshop || !bytes.starts_with(photoshop);
        m_photoshop = readPhotoshopDensity(bytes.substr(std::min(bytes.size(), photoshop.size())));
        m_doubtful |= !m_photoshop;
    } else if (marker == application14) {
        takeAdobe(bytes);
    } else if (marker == huffmanTables) {
        m_hasHuffmanTable = true;
    } else if (marker != quantization && marker != restartInterval && marker != comment &&
               !isApplication) {
        m_doubtful = true;
    }
}

void JpegWalk::frame(const std::string &bytes)
{
    constexpr std::size_t header = 6;
    constexpr std::size_t perComponent = 3;
    constexpr int maxBlocks = 10;
    m_hasFrame = true;
    const std::size_t components = bytes.size() < header ? 0 : byteIn(bytes, 5);
    if (components > 0) {
        m_page.height = bigEndian16(bytes, 1);
        m_page.width = bigEndian16(bytes, 3);
    }
    if ((components != 1 && components != 3) ||
        bytes.size() != header + components * perComponent || byteIn(bytes, 0) != 8) {
        m_doubtful = true;
        return;
    }
    m_page.components = static_cast<int>(components);
    m_doubtful |= m_page.width == 0 || m_page.height == 0 || m_page.width > maxSide ||
                  m_page.height > maxSide;
    int blocks = 0;
    for (std::size_t at = header; at < bytes.size(); at += perComponent) {
        const int across = byteIn(bytes, at + 1) >> 4;
        const int down = byteIn(bytes, at + 1) & 0x0F;
        m_componentIds += bytes[at];
        m_usedTables.insert(byteIn(bytes, at + 2));
        blocks += across * down;
        m_doubtful |= !isFactor(across) || !isFactor(down);
    }
    m_doubtful |= components > 1 && blocks > maxBlocks;
}

void JpegWalk::takeJfif(const std::string &bytes)
{
    constexpr std::size_t minSize = 14;
    if (!bytes.starts_with(jfif) || bytes.size() < minSize)
        return;
    m_doubtful |= m_jfif.has_value();
    m_jfif = bytes;
}

// JFIF's density overrides Photoshop's, and EXIF's overrides both, in any order.
Density JpegWalk::density()
{
    Density result = m_photoshop.value_or(Density());
    // ImageMagick takes a 1 for an aspect ratio, with any unit.
    const std::uint16_t x = m_jfif ? bigEndian16(*m_jfif, 8) : 1;
    const std::uint16_t y = m_jfif ? bigEndian16(*m_jfif, 10) : 1;
    if (x != 1 && y != 1) {
        const int unit = byteIn(*m_jfif, 7);
        result.x = x;
        result.y = y;
        if (unit == 1)
            result.unit = Density::Unit::Inch;
        if (unit == 2)
            result.unit = Density::Unit::Centimetre;
    }
    const ExifFacts facts = m_exif.value_or(ExifFacts());
    // Without EXIF's, the versions read XMP's differently.
    m_doubtful |= facts.isDoubtful || (m_xmpStatesDensity && !facts.density);
    return facts.density.value_or(result);
}

void JpegWalk::takeApplication1(const std::string &bytes)
{
    const auto sameLetter = [](char one, char other) { return (one | 0x20) == (other | 0x20); };
    const std::string_view word = exif.substr(0, 4);
    if (bytes.size() >= exif.size() &&
        std::equal(word.begin(), word.end(), bytes.begin(), sameLetter)) {
        m_doubtful |= m_exif || !bytes.starts_with(exif);
        m_exif = readExif(bytes.substr(exif.size()));
        m_page.orientation = m_exif->orientation;
    } else {
        m_xmpStatesDensity |= xmpStatesDensity(bytes);
        m_doubtful |= xmpOverridesExif(bytes);
    }
}

void JpegWalk::takeProfilePart(const std::string &bytes)
{
    if (!bytes.starts_with(iccProfile))
        return;
    if (bytes.size() < iccProfile.size() + 2) {
        m_doubtful = true;
        return;
    }
    const int number = byteIn(bytes, iccProfile.size());
    const int parts = byteIn(bytes, iccProfile.size() + 1);
    m_doubtful |= number != ++m_profileParts || (number > 1 && parts != m_profilePartsPromised);
    m_profilePartsPromised = parts;
    if (!m_doubtful)
        m_profile += bytes.substr(iccProfile.size() + 2);
}

void JpegWalk::takeAdobe(const std::string &bytes)
{
    constexpr std::size_t size = 12;
    if (!bytes.starts_with(adobe))
        return;
    // A longer one could contain other data.
    m_doubtful |= bytes.size() != size || m_adobeTransform;
    m_adobeTransform = bytes.size() == size ? byteIn(bytes, size - 1) : -1;
}

// Whether readers of PDFs, which go by the Adobe segment alone, show the same colours as libjpeg:
// it goes by JFIF, the Adobe segment and the components' names, in this order.
bool JpegWalk::coloursAreCertain() const
{
    if (m_page.components == 1)
        return true;
    if (m_adobeTransform)
        return *m_adobeTransform == 1 || (*m_adobeTransform == 0 && !m_jfif);
    return m_componentIds != "RGB" && m_componentIds != "rgb" && m_componentIds != "\x01\x22\x23";
}

void JpegWalk::finish()
{
    // Without tables some readers use default ones.
    m_doubtful |= !m_hasHuffmanTable;
    // A progressive image has several scans of each component.
    m_doubtful |= !m_isProgressive && m_scannedComponents != m_page.components;
    m_doubtful |= !coloursAreCertain() || m_profileParts != m_profilePartsPromised;
    m_doubtful |= !m_profile.empty() && !isProfileFor(m_profile, m_page.components);
    if (!m_doubtful && !m_profile.empty())
        m_page.iccProfile = m_spool.add(m_profile);
    if (!m_doubtful)
        dropUnusedTables();
    m_page.filter = "DCTDecode";
    setPageSize(m_page, density());
}

// They could contain other data.
void JpegWalk::dropUnusedTables()
{
    for (const QuantizationSegment &segment : m_quantization) {
        const std::optional<std::string> used = withUsedTables(segment, m_usedTables);
        if (!used)
            m_doubtful = true;
        else if (used->size() != segment.extent.length)
            replacePart(m_page.extents, segment.extent,
                        used->empty() ? std::nullopt : std::optional(m_spool.add(*used)));
    }
}

void JpegWalk::keep(std::uint64_t from)
{
    const std::uint64_t length = m_file.offset() - from;
    if (!m_page.extents.empty() &&
        m_page.extents.back().offset + m_page.extents.back().length == from)
        m_page.extents.back().length += length;
    else if (m_page.extents.size() < maxExtents)
        m_page.extents.push_back({from, length});
    else
        m_doubtful = true;
}

} // namespace

JpegImage readJpegImage(FileBytes &file, Spool &spool)
{
    return JpegWalk(file, spool).image();
}
