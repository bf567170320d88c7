#include "imageheaders.h"

#include "imagekind.h"
#include "tiffdirectory.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <memory>

#include <jpeglib.h>
#include <unistd.h>

namespace {

// Bytes of the colour table that a GIF file's flags tell of.
std::uint64_t colourTable(std::optional<std::uint8_t> flags)
{
    return flags && (*flags & 0x80) != 0 ? 3 * (std::uint64_t(2) << (*flags & 7)) : 0;
}

// The images among the blocks of a GIF file (its public description, appendix A).
size_t gifImages(FileBytes &file)
{
    constexpr std::uint8_t image = 0x2C;
    static constexpr std::array<std::uint8_t, 2> kinds = {0x21, image}; // an extension, an image
    const auto isKnown = [](std::optional<std::uint8_t> kind) {
        return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
    };
    size_t count = 0;
    file.seek(10);
    const std::uint64_t table = colourTable(file.byte());
    file.skip(2 + table);
    for (auto kind = file.byte(); isKnown(kind); kind = file.byte()) {
        if (kind == image) {
            ++count;
            file.skip(8);
            file.skip(colourTable(file.byte()));
        }
        file.skip(1); // the label of an extension, the code size of an image
        while (const std::uint8_t size = file.byte().value_or(0))
            file.skip(size);
    }
    return count;
}

struct JpegErrors
{
    jpeg_error_mgr manager;
    jmp_buf failed;
};

void leave(j_common_ptr info)
{
    longjmp(reinterpret_cast<JpegErrors *>(info->err)->failed, 1);
}

struct JpegStart
{
    PixelSize size;
    /// libjpeg has no complaint about anything before the image data.
    bool isSound = false;
};

JpegStart startOf(FILE *file)
{
    JpegErrors errors = {};
    jpeg_decompress_struct info = {};
    info.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = leave;
    errors.manager.output_message = [](j_common_ptr) {};
    JpegStart start;
    if (setjmp(errors.failed) == 0) {
        jpeg_create_decompress(&info);
        jpeg_stdio_src(&info, file);
        jpeg_read_header(&info, TRUE);
        // Or else all scans of a progressive image would be decoded now.
        info.buffered_image = jpeg_has_multiple_scans(&info);
        jpeg_start_decompress(&info);
        start.isSound = errors.manager.num_warnings == 0;
    }
    start.size = {info.image_width, info.image_height};
    jpeg_destroy_decompress(&info);
    return start;
}

JpegStart startOf(int file)
{
    const std::unique_ptr<FILE, int (*)(FILE *)> stream(fdopen(dup(file), "rb"), fclose);
    if (!stream)
        return {};
    rewind(stream.get());
    return startOf(stream.get());
}

} // namespace

size_t imagesIn(int file)
{
    FileBytes bytes(file);
    switch (imageKind(file)) {
    case ImageKind::Tiff:
        return std::max<size_t>(tiffDirectories(bytes).size(), 1);
    case ImageKind::Gif:
        return std::max<size_t>(gifImages(bytes), 1);
    default:
        return 1;
    }
}

PixelSize jpegSize(int file)
{
    return startOf(file).size;
}

bool isJpegSound(int file)
{
    return startOf(file).isSound;
}
