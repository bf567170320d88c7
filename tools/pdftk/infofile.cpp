#include "infofile.h"

#include "text.h"

namespace {

const std::string keyLabel = "InfoKey:";
const std::string valueLabel = "InfoValue:";
const std::string byteOrderMark = "\xEF\xBB\xBF";

bool startsWith(const std::string &text, const std::string &beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

std::vector<std::string> textLines(const std::string &content, const std::string &charset)
{
    const bool marked = startsWith(content, byteOrderMark);
    std::vector<std::string> lines =
        linesOf(encoded(marked ? decoded(content.substr(byteOrderMark.size()), "UTF-8")
                               : decoded(content, charset)));
    for (std::string &line : lines) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
    }
    return lines;
}

} // namespace

std::optional<std::vector<InfoEntry>> infoEntries(const std::string &content,
                                                  const std::string &charset)
{
    const std::vector<std::string> lines = textLines(content, charset);
    std::vector<InfoEntry> entries;
    for (size_t i = 0; i < lines.size(); ++i) {
        // A value may hold any line; only a key and its value in a row are a pair.
        const bool pair = i + 1 < lines.size() && startsWith(lines[i], keyLabel) &&
                          startsWith(lines[i + 1], valueLabel);
        if (pair) {
            entries.push_back(
                {lines[i].substr(keyLabel.size()), lines[i + 1].substr(valueLabel.size())});
            ++i;
        } else if (!entries.empty()) {
            entries.back().value += "\n" + lines[i];
        } else {
            return std::nullopt;
        }
    }
    return entries;
}
