#include "magickwarnings.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <charconv>

using namespace std::string_view_literals;

namespace {

constexpr std::array damage = {
    // What ImageMagick itself, or a library that it calls, regards as an error.
    "@ error/"sv,
    "@ fatal/"sv,
    // Nothing is reported after the 64th warning, whatever it is.
    "exception processing is suspended"sv,
    "InvalidColormapIndex"sv,
    // libjpeg's warnings of data that is missing or cannot be decoded.
    "Premature end of JPEG file"sv,
    "premature end of data segment"sv,
    "bad Huffman code"sv,
    "bad arithmetic code"sv,
    "instead of RST"sv,
    // libtiff's. Not those of a bad row of a fax: decoding goes on at the next one, and whether
    // rows are missing is looked at before (group4.h).
    "Premature EOF"sv,
    "IO error during reading of \"XResolution"sv,
    "IO error during reading of \"YResolution"sv,
    "Incorrect count for \"Strip"sv,
    "Incorrect count for \"Tile"sv,
    "to avoid buffer overrun"sv,
    "Improper JPEG strip/tile size"sv,
};

// Cameras leave some bytes behind a scan. Where decoding went wrong without a warning, a good part
// of the scan is left.
bool isScanLeft(std::string_view messages)
{
    constexpr long maxBehindScans = 256;
    constexpr auto phrase = " extraneous bytes before marker 0x"sv;
    // The ends of scans: of the image, by another scan, by its tables.
    constexpr std::array ends = {"d9"sv, "da"sv, "c4"sv};
    long left = 0;
    for (size_t at = messages.find(phrase); at != std::string_view::npos;
         at = messages.find(phrase, at + 1)) {
        if (std::ranges::find(ends, messages.substr(at + phrase.size(), 2)) == ends.end())
            continue;
        long bytes = 0;
        std::from_chars(messages.data() + messages.rfind(' ', at - 1) + 1, messages.data() + at,
                        bytes);
        left += bytes;
    }
    return left > maxBehindScans;
}

} // namespace

bool reportsDamage(std::string_view messages)
{
    return isScanLeft(messages) || std::ranges::any_of(damage, [messages](std::string_view phrase) {
               return messages.find(phrase) != std::string_view::npos;
           });
}

// Data that is short is an error of its own.
void forgiveWrongFileSize(SubprocessResult &result)
{
    std::string others;
    for (const std::string &line : linesOf(result.errors)) {
        if (line.find("length and filesize do not match") == std::string::npos)
            others += line + "\n";
    }
    if (others.size() == result.errors.size())
        return;
    result.errors = others;
    if (result.exitStatus() == 1 && !reportsDamage(others))
        result.waitStatus = 0;
}
