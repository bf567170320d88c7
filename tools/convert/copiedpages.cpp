#include "copiedpages.h"

#include "error.h"
#include "filedescriptor.h"

#include <qpdf/Pipeline.hh>

#include <algorithm>
#include <array>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace {

using Handle = QPDFObjectHandle;

void copyExtent(int file, const Extent &extent, const std::string &path,
                const std::function<void()> &check, Pipeline &pipeline)
{
    constexpr std::uint64_t blockSize = 65536;
    std::vector<unsigned char> buffer(std::min(blockSize, extent.length));
    for (std::uint64_t done = 0; done < extent.length;) {
        check();
        const size_t wanted = std::min<std::uint64_t>(buffer.size(), extent.length - done);
        const ssize_t count =
            pread(file, buffer.data(), wanted, static_cast<off_t>(extent.offset + done));
        if (count < 0)
            throw systemError("cannot read", path);
        if (count == 0)
            throw ToolError("'" + path + "' was changed meanwhile");
        pipeline.write(buffer.data(), static_cast<size_t>(count));
        done += static_cast<std::uint64_t>(count);
    }
}

// The data of a page's image: from its file, which must be as it was when it was read, and from the
// spool.
class ImageData : public Handle::StreamDataProvider
{
public:
    ImageData(const DocumentPart &part, const CopyablePage &page, int spool,
              const std::function<void()> &check)
        : m_path(part.path)
        , m_identity(part.identity)
        , m_extents(page.extents)
        , m_spool(spool)
        , m_check(check)
    {
    }

    void provideStreamData(const QPDFObjGen &, Pipeline *pipeline) override
    {
        const FileDescriptor file(open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        if (!file.valid())
            throw systemError("cannot read", m_path);
        requireUnchanged(file.get(), m_path, m_identity);
        for (const Extent &extent : m_extents)
            copyExtent(extent.isSpooled ? m_spool : file.get(), extent, m_path, m_check, *pipeline);
        requireUnchanged(file.get(), m_path, m_identity);
        pipeline->finish();
    }

private:
    std::string m_path;
    FileIdentity m_identity;
    std::vector<Extent> m_extents;
    int m_spool;
    const std::function<void()> &m_check;
};

class ProfileData : public Handle::StreamDataProvider
{
public:
    ProfileData(int spool, const Extent &extent, const std::function<void()> &check)
        : m_spool(spool)
        , m_extent(extent)
        , m_check(check)
    {
    }

    void provideStreamData(const QPDFObjGen &, Pipeline *pipeline) override
    {
        copyExtent(m_spool, m_extent, "the pages", m_check, *pipeline);
        pipeline->finish();
    }

private:
    int m_spool;
    Extent m_extent;
    const std::function<void()> &m_check;
};

Handle parmsOf(const CopyablePage &page)
{
    if (page.decodeParms.empty())
        return Handle::newNull();
    Handle parms = Handle::newDictionary();
    for (const auto &[key, value] : page.decodeParms)
        parms.replaceKey(key, Handle::parse(value));
    return parms;
}

// The matrices that put the unit square of an image of each orientation upright into itself.
constexpr std::array<std::array<int, 6>, 8> uprightMatrices = {{
    {1, 0, 0, 1, 0, 0},
    {-1, 0, 0, 1, 1, 0},
    {-1, 0, 0, -1, 1, 1},
    {1, 0, 0, -1, 0, 1},
    {0, -1, -1, 0, 1, 1},
    {0, -1, 1, 0, 0, 1},
    {0, 1, 1, 0, 0, 0},
    {0, 1, -1, 0, 1, 0},
}};

std::string drawing(const CopyablePage &page)
{
    std::string result = "q\n";
    bool isX = true;
    for (const int factor : uprightMatrices.at(static_cast<size_t>(page.orientation - 1))) {
        const double side = isX ? page.pageWidth : page.pageHeight;
        result += (factor == 0 ? "0" : Handle::newReal(factor * side).unparse()) + " ";
        isX = !isX;
    }
    return result + "cm\n/Im0 Do\nQ\n";
}

Handle dictionaryOf(const std::map<std::string, Handle> &items)
{
    return Handle::newDictionary(items);
}

// ImageMagick writes such sides with an exponent, which PDF does not allow.
bool isBeyondReason(double side)
{
    return side < 1e-4 || side >= 1e6;
}

} // namespace

ToolError unsoundPage()
{
    return ToolError("a page is not sound; the image may have a density beyond reason");
}

std::vector<Handle> CopiedPages::make(const DocumentPart &part)
{
    std::vector<Handle> made;
    for (const CopyablePage &page : part.copied)
        made.push_back(makePage(part, page));
    return made;
}

Handle CopiedPages::makePage(const DocumentPart &part, const CopyablePage &page)
{
    if (isBeyondReason(page.pageWidth) || isBeyondReason(page.pageHeight))
        throw unsoundPage();
    const Handle box =
        Handle::newArray({Handle::newInteger(0), Handle::newInteger(0),
                          Handle::newReal(page.pageWidth), Handle::newReal(page.pageHeight)});
    const Handle images = dictionaryOf({{"/Im0", imageOf(part, page)}});
    return m_document.makeIndirectObject(
        dictionaryOf({{"/Type", Handle::newName("/Page")},
                      {"/MediaBox", box},
                      {"/Resources", dictionaryOf({{"/XObject", images}})},
                      {"/Contents", Handle::newStream(&m_document, drawing(page))}}));
}

Handle CopiedPages::imageOf(const DocumentPart &part, const CopyablePage &page)
{
    Handle image = Handle::newStream(&m_document);
    image.replaceDict(
        dictionaryOf({{"/Type", Handle::newName("/XObject")},
                      {"/Subtype", Handle::newName("/Image")},
                      {"/Width", Handle::newInteger(page.width)},
                      {"/Height", Handle::newInteger(page.height)},
                      {"/BitsPerComponent", Handle::newInteger(page.bitsPerComponent)},
                      {"/ColorSpace", colorSpaceOf(page)}}));
    if (page.inverted)
        image.getDict().replaceKey("/Decode", Handle::parse("[1 0]"));
    image.replaceStreamData(std::make_shared<ImageData>(part, page, m_spool, m_check),
                            Handle::newName("/" + page.filter), parmsOf(page));
    return image;
}

Handle CopiedPages::colorSpaceOf(const CopyablePage &page)
{
    const bool grey = page.components == 1 && page.palette.empty();
    const Handle base = !page.iccProfile
                            ? Handle::newName(grey ? "/DeviceGray" : "/DeviceRGB")
                            : Handle::newArray({Handle::newName("/ICCBased"), profileOf(page)});
    if (page.palette.empty())
        return base;
    const auto last = static_cast<long long>(page.palette.size() / 3) - 1;
    return Handle::newArray({Handle::newName("/Indexed"), base, Handle::newInteger(last),
                             Handle::newString(page.palette)});
}

Handle CopiedPages::profileOf(const CopyablePage &page)
{
    const auto known = m_profiles.find(page.iccProfile->offset);
    if (known != m_profiles.end())
        return known->second;
    Handle profile = Handle::newStream(&m_document);
    profile.replaceStreamData(std::make_shared<ProfileData>(m_spool, *page.iccProfile, m_check),
                              Handle::newNull(), Handle::newNull());
    const int components = page.palette.empty() ? page.components : 3;
    profile.getDict().replaceKey("/N", Handle::newInteger(components));
    m_profiles.emplace(page.iccProfile->offset, profile);
    return profile;
}
