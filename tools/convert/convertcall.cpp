#include "convertcall.h"

#include "text.h"

#include <algorithm>
#include <array>
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

bool isAlphanumeric(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
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

std::string inputName(size_t number, const std::string &path)
{
    constexpr size_t longestExtension = 8;
    const std::string name = "input-" + std::to_string(number);
    const std::string file = fileNameOf(path);
    const size_t dot = file.rfind('.');
    const std::string extension = dot == std::string::npos ? "" : file.substr(dot + 1);
    const bool plain = !extension.empty() && extension.size() <= longestExtension &&
                       std::all_of(extension.begin(), extension.end(), isAlphanumeric);
    return plain && extension != "pdf" ? name + "." + extension : name;
}

std::string outputWord(std::string name)
{
    replaceAll(name, "%", "%%");
    return "./" + name;
}
