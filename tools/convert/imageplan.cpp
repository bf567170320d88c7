#include "imageplan.h"

#include "filebytes.h"
#include "gifimages.h"
#include "jpegpage.h"
#include "jpegsoundness.h"
#include "pngpage.h"
#include "tiffpages.h"
#include "webporientation.h"

#include <algorithm>
#include <array>
#include <string_view>

using namespace std::string_view_literals;

namespace {

struct Source
{
    int file;
    FileBytes bytes;
    bool mayCopy;
    Spool &spool;
};

ImagePlan readOther(Source &)
{
    return ConvertedImage{};
}

ImagePlan readGif(Source &source)
{
    return ConvertedImage{ImageKind::Gif, gifImages(source.bytes)};
}

ImagePlan readJpeg(Source &source)
{
    JpegImage image = readJpegImage(source.bytes, source.spool);
    if (image.page && source.mayCopy && isSoundJpeg(source.file))
        return CopiedImage{{std::move(*image.page)}};
    return ConvertedImage{ImageKind::Jpeg, 1, image.size, image.orientation};
}

ImagePlan readPng(Source &source)
{
    PngImage image = readPngImage(source.bytes, source.spool);
    if (image.page && source.mayCopy)
        return CopiedImage{{std::move(*image.page)}};
    return ConvertedImage{ImageKind::Png, 1, {}, image.orientation};
}

ImagePlan readTiff(Source &source)
{
    TiffImage image = readTiffImage(source.file, source.mayCopy, source.spool);
    if (!image.copied.empty())
        return CopiedImage{std::move(image.copied)};
    return ConvertedImage{ImageKind::Tiff, image.pages};
}

ImagePlan readWebp(Source &source)
{
    return ConvertedImage{ImageKind::Webp, 1, {}, webpOrientation(source.bytes)};
}

struct Format
{
    std::string_view signature;
    Compression compression;
    ImagePlan (*read)(Source &);
};

constexpr std::array<Format, 10> formats = {{
    {"\xFF\xD8\xFF"sv, Compression::Jpeg, readJpeg},
    {"\x89PNG\r\n\x1A\n"sv, Compression::Zip, readPng},
    {"II\x2A\0"sv, Compression::Group4, readTiff},
    {"MM\0\x2A"sv, Compression::Group4, readTiff},
    {"II\x2B\0"sv, Compression::Group4, readTiff},
    {"MM\0\x2B"sv, Compression::Group4, readTiff},
    {"GIF87a"sv, Compression::Other, readGif},
    {"GIF89a"sv, Compression::Other, readGif},
    {"RIFF"sv, Compression::Other, readWebp},
    {""sv, Compression::Other, readOther},
}};

} // namespace

ImagePlan planImage(int file, const ConvertOptions &options, Spool &spool)
{
    constexpr std::size_t maxSignature = 8;
    Source source = {file, FileBytes(file), false, spool};
    const std::string start = source.bytes.read(maxSignature);
    source.bytes.seek(0);
    const auto *format = std::ranges::find_if(
        formats, [&start](const Format &known) { return start.starts_with(known.signature); });
    source.mayCopy = !options.changesPixels() && options.allows(format->compression);
    return format->read(source);
}
