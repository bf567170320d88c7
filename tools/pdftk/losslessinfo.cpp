#include "losslessinfo.h"

#include "text.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view keyLabel = "InfoKey:";
constexpr std::string_view valueLabel = "InfoValue:";

bool isPlain(char32_t code)
{
    constexpr std::string_view special = "&<>\"'";
    return code >= 0x20 && code < 0x7F && special.find(static_cast<char>(code)) == special.npos;
}

std::string withEntities(std::string_view text)
{
    std::string result;
    for (size_t i = 0; i < text.size();) {
        const size_t length = utf8Length(text, i);
        const char32_t code = codePointAt(text, i, length);
        if (isPlain(code))
            result += static_cast<char>(code);
        else
            result += "&#" + std::to_string(static_cast<unsigned long>(code)) + ";";
        i += length;
    }
    return result;
}

std::string rewritten(std::string_view line)
{
    if (line.starts_with(keyLabel))
        return "InfoBegin\nInfoKey: " + std::string(line.substr(keyLabel.size())) + "\n";
    if (line.starts_with(valueLabel))
        return "InfoValue: " + withEntities(line.substr(valueLabel.size())) + "\n";
    return std::string(line) + "\n";
}

} // namespace

std::string losslessInfo(const std::string &content, const std::string &charset)
{
    const std::vector<std::string> lines = linesOf(toUtf8(content, charset));
    const auto isOldKey = [](const std::string &line) { return line.starts_with(keyLabel); };
    if (std::find(lines.begin(), lines.end(), "InfoBegin") != lines.end() ||
        std::none_of(lines.begin(), lines.end(), isOldKey))
        return "";
    std::string result;
    for (const std::string &line : lines)
        result += rewritten(line);
    return result;
}
