#include "words.h"

#include <algorithm>

namespace {

// Of the words that `text` may begin with, the longest is the last that does not sort behind it;
// if that one is another word, the next shorter can only be a beginning that both share.
Replacements::const_iterator longestBeginning(std::string_view text, const Replacements &words)
{
    for (auto word = words.upper_bound(text); word != words.begin() && !text.empty();
         word = words.upper_bound(text)) {
        --word;
        if (text.starts_with(word->first))
            return word;
        const auto [differs, unused] =
            std::mismatch(text.begin(), text.end(), word->first.begin(), word->first.end());
        text = text.substr(0, static_cast<size_t>(differs - text.begin()));
    }
    return words.end();
}

} // namespace

std::string replaced(std::string_view text, const Replacements &words)
{
    std::string result;
    while (!text.empty()) {
        const auto word = longestBeginning(text, words);
        if (word == words.end()) {
            result += text.front();
            text.remove_prefix(1);
        } else {
            result += word->second;
            text.remove_prefix(word->first.size());
        }
    }
    return result;
}
