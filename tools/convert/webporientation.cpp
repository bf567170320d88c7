#include "webporientation.h"

#include "metadata.h"

#include <string_view>

int webpOrientation(FileBytes &file)
{
    constexpr std::size_t fileHead = 12;
    constexpr std::size_t chunkHead = 8;
    constexpr std::uint64_t maxExif = std::uint64_t{1} << 20;
    constexpr std::string_view start("Exif\0\0", 6);
    file.seek(fileHead);
    for (std::string head = file.read(chunkHead); head.size() == chunkHead;
         head = file.read(chunkHead)) {
        std::uint64_t length = 0;
        for (std::size_t at = chunkHead; at > chunkHead / 2; --at)
            length = length << 8 | static_cast<std::uint8_t>(head[at - 1]);
        if (head.starts_with("EXIF") && length <= maxExif) {
            const std::string block = file.read(length);
            return readExif(block.starts_with(start) ? block.substr(start.size()) : block)
                .orientation;
        }
        file.skip(length + length % 2);
    }
    return 1;
}
