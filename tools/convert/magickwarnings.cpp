#include "magickwarnings.h"

#include <algorithm>
#include <array>

using namespace std::string_view_literals;

namespace {

constexpr std::array telling = {
    // What ImageMagick itself, or a library that it asks, calls an error.
    "@ error/"sv,
    "@ fatal/"sv,
    // libjpeg's warnings of data that is missing or cannot be decoded. Not "extraneous bytes
    // before marker": many cameras write such files.
    "Premature end of JPEG file"sv,
    "premature end of data segment"sv,
    "bad Huffman code"sv,
    "bad arithmetic code"sv,
    "instead of RST"sv,
    // libtiff's. Not what a fax with a bad line gets: the decoder goes on at the next line.
    "Premature EOF"sv,
    "Not enough data"sv,
    "Read error"sv,
    "Can not read TIFF directory"sv,
};

} // namespace

bool reportsDamage(std::string_view messages)
{
    return std::ranges::any_of(telling, [messages](std::string_view phrase) {
        return messages.find(phrase) != std::string_view::npos;
    });
}
