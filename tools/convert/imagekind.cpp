#include "imagekind.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <unistd.h>

using namespace std::string_view_literals;

namespace {

struct Signature
{
    std::string_view beginning;
    ImageKind kind;
};

constexpr std::array<Signature, 8> signatures = {{
    {"\xFF\xD8\xFF"sv, ImageKind::Jpeg},
    {"\x89PNG\r\n\x1A\n"sv, ImageKind::Png},
    {"II\x2A\0"sv, ImageKind::Tiff},
    {"MM\0\x2A"sv, ImageKind::Tiff},
    {"II\x2B\0"sv, ImageKind::Tiff},
    {"MM\0\x2B"sv, ImageKind::Tiff},
    {"GIF87a"sv, ImageKind::Gif},
    {"GIF89a"sv, ImageKind::Gif},
}};

} // namespace

ImageKind imageKind(int file)
{
    std::array<char, 8> bytes{};
    const ssize_t count = pread(file, bytes.data(), bytes.size(), 0);
    const std::string_view beginning(bytes.data(),
                                     static_cast<size_t>(std::max<ssize_t>(count, 0)));
    const auto *found = std::ranges::find_if(signatures, [beginning](const Signature &signature) {
        return beginning.starts_with(signature.beginning);
    });
    return found == signatures.end() ? ImageKind::Other : found->kind;
}
