#include "imageformat.h"

#include <QIODevice>

#include <algorithm>
#include <string>
#include <string_view>

using namespace std::string_view_literals;

namespace {

struct Signature
{
    const char *format;
    std::size_t offset;
    std::string_view bytes;
};

// Qt itself does not read the last four formats; a desktop may install plug-ins for them.
constexpr Signature signatures[] = {
    {"bmp", 0, "BM"sv},
    {"gif", 0, "GIF8"sv},
    {"jpeg", 0, "\xff\xd8\xff"sv},
    {"pcx", 0, "\x0a"sv},
    {"png", 0, "\x89PNG\r\n\x1a\n"sv},
    {"pbm", 0, "P1"sv},
    {"pgm", 0, "P2"sv},
    {"ppm", 0, "P3"sv},
    {"pbm", 0, "P4"sv},
    {"pgm", 0, "P5"sv},
    {"ppm", 0, "P6"sv},
    {"tiff", 0, "II*\0"sv},
    {"tiff", 0, "MM\0*"sv},
    {"tiff", 0, "II+\0"sv}, // more than 4 GiB
    {"tiff", 0, "MM\0+"sv},
    {"webp", 8, "WEBPVP8"sv},
    {"avif", 4, "ftypavif"sv},
    {"heic", 4, "ftyphei"sv},
    {"heic", 4, "ftypmif1"sv},
    {"jp2", 0, "\0\0\0\x0cjP  "sv},
    {"jxl", 0, "\xff\x0a"sv},
    {"jxl", 0, "\0\0\0\x0cJXL "sv},
};

constexpr qint64 signatureBytes = 16;

} // namespace

QByteArray imageFormat(QIODevice &file)
{
    std::string head = file.peek(signatureBytes).toStdString();
    head.resize(signatureBytes); // enough for every signature
    const auto found = std::ranges::find_if(signatures, [&head](const Signature &signature) {
        return head.compare(signature.offset, signature.bytes.size(), signature.bytes) == 0;
    });
    return found == std::end(signatures) ? QByteArray() : QByteArray(found->format);
}
