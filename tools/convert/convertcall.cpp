#include "convertcall.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

#include <unistd.h>

namespace {

struct Option
{
    std::string_view word;
    size_t values;
};

constexpr std::array<Option, 4> knownOptions = {{
    {"-resize", 1},
    {"-rotate", 1},
    {"-compress", 1},
    {"-monochrome", 0},
}};

const Option *optionNamed(const std::string &word)
{
    const auto *option = std::find_if(knownOptions.begin(), knownOptions.end(),
                                      [&word](const Option &known) { return known.word == word; });
    return option == knownOptions.end() ? nullptr : option;
}

// Extensions of formats that the policy lets ImageMagick read (tools/policy/rights.xml).
constexpr std::array<std::string_view, 44> knownExtensions = {
    "avif", "bmp", "cur", "dcx", "dib", "gif",  "heic", "heif", "icb",  "ico", "j2c",
    "j2k",  "jng", "jp2", "jpc", "jpe", "jpeg", "jpg",  "jpm",  "jpt",  "jxl", "mng",
    "pam",  "pbm", "pcx", "pfm", "pgm", "png",  "pnm",  "ppm",  "psb",  "psd", "qoi",
    "ras",  "sgi", "sun", "tga", "tif", "tiff", "vda",  "vst",  "webp", "xbm", "xpm",
};

std::string lowerCase(std::string word)
{
    for (char &character : word) {
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    }
    return word;
}

// The last value given with `option`, or nothing.
std::optional<std::string> valueOf(const std::vector<std::string> &options, std::string_view option)
{
    std::optional<std::string> value;
    for (size_t i = 0; i < options.size(); i += 1 + optionNamed(options[i])->values) {
        if (options[i] == option)
            value = options[i + 1];
    }
    return value;
}

// A word with a leading dash is an option at a place where the application puts none, or the
// standard input, unless there is a file of that name.
bool isFileName(const std::string &word)
{
    return !word.empty() && (!word.starts_with('-') || access(word.c_str(), F_OK) == 0);
}

} // namespace

std::optional<ConvertCall> parseConvertCall(const std::vector<std::string> &arguments)
{
    size_t next = 0;
    while (next < arguments.size()) {
        const Option *option = optionNamed(arguments[next]);
        if (!option)
            break;
        next += 1 + option->values;
    }
    if (next + 2 > arguments.size() || !arguments.back().ends_with(".pdf"))
        return std::nullopt;
    const auto firstInput = arguments.begin() + static_cast<ptrdiff_t>(next);
    if (!std::all_of(firstInput, arguments.end() - 1, isFileName))
        return std::nullopt;
    return ConvertCall{
        {arguments.begin(), firstInput}, {firstInput, arguments.end() - 1}, arguments.back()};
}

bool asksToDelete(const std::vector<std::string> &arguments)
{
    return std::ranges::any_of(arguments, [](const std::string &word) {
        return lowerCase(word).find("ephemeral:") != std::string::npos;
    });
}

bool changesPixels(const std::vector<std::string> &options)
{
    for (size_t i = 0; i < options.size(); i += 1 + optionNamed(options[i])->values) {
        const bool turnsNothing = options[i] == "-rotate" && options[i + 1] == "0";
        if (options[i] != "-compress" && !turnsNothing)
            return true;
    }
    return false;
}

Compression askedCompression(const std::vector<std::string> &options)
{
    static const std::map<std::string, Compression> words = {
        {"jpeg", Compression::Jpeg}, {"zip", Compression::Zip}, {"group4", Compression::Group4}};
    const std::optional<std::string> value = valueOf(options, "-compress");
    if (!value)
        return Compression::Unset;
    const auto word = words.find(lowerCase(*value));
    return word == words.end() ? Compression::Other : word->second;
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
