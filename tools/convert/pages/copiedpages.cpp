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

// The extents of a file, which must be the one that they were found in.
class FileExtents : public Handle::StreamDataProvider
{
public:
    FileExtents(const DocumentPart &part, const std::vector<Extent> &extents)
        : m_path(part.path)
        , m_stamp(part.stamp)
        , m_extents(extents)
    {
    }

    void provideStreamData(const QPDFObjGen &, Pipeline *pipeline) override
    {
        const FileDescriptor file(open(m_path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        if (!file.valid())
            throw systemError("cannot read", m_path);
        requireUnchanged(file);
        for (const Extent &extent : m_extents)
            pass(file, extent, *pipeline);
        requireUnchanged(file);
        pipeline->finish();
    }

private:
    void requireUnchanged(const FileDescriptor &file) const
    {
        if (!(fileStamp(file.get()) == m_stamp))
            throw ToolError("'" + m_path + "' was changed meanwhile");
    }

    void pass(const FileDescriptor &file, const Extent &extent, Pipeline &pipeline) const
    {
        std::array<unsigned char, 65536> buffer{};
        for (std::uint64_t done = 0; done < extent.length;) {
            const size_t wanted = std::min<std::uint64_t>(buffer.size(), extent.length - done);
            const ssize_t count =
                pread(file.get(), buffer.data(), wanted, static_cast<off_t>(extent.offset + done));
            if (count < 0)
                throw systemError("cannot read", m_path);
            if (count == 0)
                throw ToolError("'" + m_path + "' was changed meanwhile");
            pipeline.write(buffer.data(), static_cast<size_t>(count));
            done += static_cast<std::uint64_t>(count);
        }
    }

    std::string m_path;
    FileStamp m_stamp;
    std::vector<Extent> m_extents;
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

std::string drawing(const CopyablePage &page)
{
    const auto number = [](double value) { return Handle::newReal(value).unparse(); };
    return "q\n" + number(page.pageWidth) + " 0 0 " + number(page.pageHeight) +
           " 0 0 cm\n/Im0 Do\nQ\n";
}

Handle dictionaryOf(const std::map<std::string, Handle> &items)
{
    return Handle::newDictionary(items);
}

} // namespace

std::vector<Handle> CopiedPages::make(const DocumentPart &part)
{
    std::vector<Handle> made;
    for (const CopyablePage &page : part.copied)
        made.push_back(makePage(part, page));
    return made;
}

Handle CopiedPages::makePage(const DocumentPart &part, const CopyablePage &page)
{
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
    const Handle filter = Handle::newName("/" + page.filter), parms = parmsOf(page);
    if (page.data.empty())
        image.replaceStreamData(std::make_shared<FileExtents>(part, page.extents), filter, parms);
    else
        image.replaceStreamData(page.data, filter, parms);
    return image;
}

Handle CopiedPages::colorSpaceOf(const CopyablePage &page)
{
    const bool grey = page.components == 1 && page.palette.empty();
    const Handle base = page.iccProfile.empty()
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
    const auto known = m_profiles.find(page.iccProfile);
    if (known != m_profiles.end())
        return known->second;
    Handle profile = Handle::newStream(&m_document, page.iccProfile);
    const int components = page.palette.empty() ? page.components : 3;
    profile.getDict().replaceKey("/N", Handle::newInteger(components));
    m_profiles.emplace(page.iccProfile, profile);
    return profile;
}
