#include "losslessinfo.h"

#include "text.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

constexpr std::u32string_view keyLabel = U"InfoKey:";
constexpr std::u32string_view valueLabel = U"InfoValue:";

bool isPlain(char32_t code)
{
    constexpr std::u32string_view special = U"&<>\"'";
    return code >= 0x20 && code < 0x7F && special.find(code) == special.npos;
}

std::string withEntities(std::u32string_view text)
{
    std::string result;
    for (const char32_t code : text) {
        if (isPlain(code))
            result += static_cast<char>(code);
        else
            result += "&#" + std::to_string(static_cast<unsigned long>(code)) + ";";
    }
    return result;
}

std::vector<std::u32string_view> linesOf(std::u32string_view text)
{
    std::vector<std::u32string_view> lines;
    while (!text.empty()) {
        lines.push_back(text.substr(0, text.find(U'\n')));
        text.remove_prefix(std::min(lines.back().size() + 1, text.size()));
    }
    return lines;
}

// A value may hold any line; only a key and its value in a row are a pair.
bool isPair(const std::vector<std::u32string_view> &lines, size_t at)
{
    return at + 1 < lines.size() && lines[at].starts_with(keyLabel) &&
           lines[at + 1].starts_with(valueLabel);
}

} // namespace

std::string losslessInfo(const std::string &content, const std::string &charset)
{
    const CodePoints text = decoded(content, charset);
    const std::vector<std::u32string_view> lines = linesOf(text);
    if (!isPair(lines, 0))
        return "";
    std::string result;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (isPair(lines, i)) {
            result += (i > 0 ? "\nInfoBegin\nInfoKey: " : "InfoBegin\nInfoKey: ") +
                      encoded(lines[i].substr(keyLabel.size()));
            result += "\nInfoValue: " + withEntities(lines[i + 1].substr(valueLabel.size()));
            ++i;
        } else {
            result += withEntities(U"\n") + withEntities(lines[i]);
        }
    }
    return result + "\n";
}
