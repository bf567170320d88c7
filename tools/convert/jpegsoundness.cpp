#include "jpegsoundness.h"

#include <csetjmp>
#include <cstdio>
#include <memory>

#include <jpeglib.h>
#include <unistd.h>

namespace {

struct JpegErrors
{
    jpeg_error_mgr manager;
    jmp_buf failed;
};

void leave(j_common_ptr info)
{
    longjmp(reinterpret_cast<JpegErrors *>(info->err)->failed, 1);
}

bool isSound(FILE *file)
{
    JpegErrors errors = {};
    jpeg_decompress_struct info = {};
    info.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = leave;
    errors.manager.output_message = [](j_common_ptr) {};
    volatile bool sound = false;
    if (setjmp(errors.failed) == 0) {
        jpeg_create_decompress(&info);
        jpeg_stdio_src(&info, file);
        jpeg_read_header(&info, TRUE);
        // Otherwise all scans of a progressive image would be decoded now.
        info.buffered_image = jpeg_has_multiple_scans(&info);
        jpeg_start_decompress(&info);
        sound = errors.manager.num_warnings == 0;
    }
    jpeg_destroy_decompress(&info);
    return sound;
}

} // namespace

bool isSoundJpeg(int file)
{
    const std::unique_ptr<FILE, int (*)(FILE *)> stream(fdopen(dup(file), "rb"), fclose);
    if (!stream)
        return false;
    rewind(stream.get());
    return isSound(stream.get());
}
