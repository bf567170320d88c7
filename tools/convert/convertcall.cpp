#include "convertcall.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace {

using Words = std::vector<std::string>;

// The application's words for a compression, and the data that may be copied for each.
struct CompressionWord
{
    std::string_view word;
    Compression compression;
};

constexpr std::array<CompressionWord, 10> compressionWords = {{
    {"None", Compression::Other},
    {"Bzip", Compression::Other},
    {"Fax", Compression::Other},
    {"Group4", Compression::Group4},
    {"JPEG", Compression::Jpeg},
    {"JPEG2000", Compression::Other},
    {"Lossless", Compression::Other},
    {"LZW", Compression::Other},
    {"RLE", Compression::Other},
    {"zip", Compression::Zip},
}};

const CompressionWord *compressionNamed(std::string_view word)
{
    const auto *found = std::ranges::find(compressionWords, word, &CompressionWord::word);
    return found == compressionWords.end() ? nullptr : found;
}

// Extensions of formats that the policy lets ImageMagick read (tools/policy/rights.xml).
constexpr std::array<std::string_view, 24> knownExtensions = {
    "avif", "bmp", "gif", "heic", "heif", "j2c", "j2k", "jp2", "jpc", "jpe", "jpeg", "jpg",
    "jpm",  "jpt", "jxl", "pbm",  "pcx",  "pgm", "png", "pnm", "ppm", "tif", "tiff", "webp",
};

std::string lowerCase(std::string word)
{
    for (char &character : word) {
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    }
    return word;
}

// Each adds the value `word` of an option, or returns nothing when it is none.
using Options = std::optional<ConvertOptions>;

// "595x842" and nothing else.
Options withResize(ConvertOptions options, const std::string &word)
{
    PixelSize &box = options.resize.emplace();
    const char *end = word.data() + word.size();
    const auto [middle, widthError] = std::from_chars(word.data(), end, box.width);
    if (widthError != std::errc() || middle == end || *middle != 'x')
        return std::nullopt;
    const auto [last, heightError] = std::from_chars(middle + 1, end, box.height);
    const bool isBox = heightError == std::errc() && last == end && box.width > 0 && box.height > 0;
    return isBox ? Options(options) : std::nullopt;
}

// A decimal number, which may have a sign: a person may type it into the application's box.
Options withRotate(ConvertOptions options, const std::string &word)
{
    const size_t sign = word.starts_with('-') || word.starts_with('+') ? 1 : 0;
    const char *end = word.data() + word.size();
    double degrees = 0;
    const auto [last, error] = std::from_chars(word.data() + sign, end, degrees);
    options.rotate = word;
    const bool isNumber = error == std::errc() && last == end &&
                          word.find_first_not_of("0123456789.", sign) == std::string::npos;
    return isNumber ? Options(options) : std::nullopt;
}

Options withCompress(ConvertOptions options, const std::string &word)
{
    options.compress = word;
    return compressionNamed(word) ? Options(options) : std::nullopt;
}

// In the order in which the application puts them.
struct ValueOption
{
    std::string_view word;
    Options (*with)(ConvertOptions options, const std::string &word);
};

constexpr std::array<ValueOption, 3> valueOptions = {{
    {"-resize", withResize},
    {"-rotate", withRotate},
    {"-compress", withCompress},
}};

} // namespace

bool ConvertOptions::changesPixels() const
{
    const bool turns = rotate.find_first_of("123456789") != std::string::npos;
    return resize || turns || monochrome;
}

bool ConvertOptions::allows(Compression compression) const
{
    return compress.empty() || compressionNamed(compress)->compression == compression;
}

std::optional<ConvertCall> parseConvertCall(const Words &arguments)
{
    ConvertCall call;
    auto word = arguments.begin();
    for (const ValueOption &option : valueOptions) {
        if (word == arguments.end() || *word != option.word)
            continue;
        if (++word == arguments.end())
            return std::nullopt;
        const Options options = option.with(call.options, *word++);
        if (!options)
            return std::nullopt;
        call.options = *options;
    }
    call.options.monochrome = word != arguments.end() && *word == "-monochrome";
    word += call.options.monochrome ? 1 : 0;
    if (arguments.end() - word < 2 || !arguments.back().ends_with(".pdf"))
        return std::nullopt;
    call.inputs = {word, arguments.end() - 1};
    call.output = arguments.back();
    const auto isPath = [](const std::string &path) {
        return !path.empty() && !path.starts_with('-');
    };
    return std::ranges::all_of(call.inputs, isPath) ? std::optional(call) : std::nullopt;
}

std::string inputName(size_t number, const std::string &path)
{
    const std::string name = "input-" + std::to_string(number);
    const std::string file = fileNameOf(path);
    const size_t dot = file.rfind('.');
    const std::string extension = dot == std::string::npos ? "" : file.substr(dot + 1);
    const bool known =
        std::ranges::find(knownExtensions, lowerCase(extension)) != knownExtensions.end();
    return known ? name + "." + extension : name;
}
