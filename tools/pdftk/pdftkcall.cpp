#include "pdftkcall.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <strings.h>

namespace {

using Words = std::vector<std::string>;

struct PermissionWord
{
    const char *word;
    bool Permissions::*allowed;
};

// In the order in which the application gives them.
constexpr std::array<PermissionWord, 4> permissionWords = {{
    {"printing", &Permissions::printing},
    {"modifycontents", &Permissions::modifyContents},
    {"copycontents", &Permissions::copyContents},
    {"modifyannotations", &Permissions::modifyAnnotations},
}};

constexpr std::array<const char *, 3> passwordKeywords = {"owner_pw", "user_pw", "input_pw"};

bool equals(const std::string &word, const char *keyword)
{
    return strcasecmp(word.c_str(), keyword) == 0;
}

bool isPasswordKeyword(const std::string &word)
{
    return std::any_of(passwordKeywords.begin(), passwordKeywords.end(),
                       [&word](const char *keyword) { return equals(word, keyword); });
}

bool isPermissionWord(const std::string &word)
{
    return equals(word, "allow") ||
           std::any_of(permissionWords.begin(), permissionWords.end(),
                       [&word](const PermissionWord &known) { return equals(word, known.word); });
}

bool isPdfName(std::string_view path)
{
    constexpr std::string_view extension = ".pdf";
    return path.size() >= extension.size() &&
           path.substr(path.size() - extension.size()) == extension;
}

class WordReader
{
public:
    explicit WordReader(const Words &words)
        : m_words(words)
    {
    }

    bool atEnd() const { return m_next == m_words.size(); }

    std::string next() { return atEnd() ? "" : m_words[m_next++]; }

    /// The word after `keyword`, if both come next.
    std::optional<std::string> valueOf(const char *keyword)
    {
        if (m_words.size() - m_next < 2 || !equals(m_words[m_next], keyword) ||
            m_words[m_next + 1].empty())
            return std::nullopt;
        m_next += 2;
        return m_words[m_next - 1];
    }

    /// Whether "allow" and `permission` come next.
    bool takesPermission(const char *permission)
    {
        if (m_words.size() - m_next < 2 || !equals(m_words[m_next], "allow") ||
            !equals(m_words[m_next + 1], permission))
            return false;
        m_next += 2;
        return true;
    }

private:
    const Words &m_words;
    size_t m_next = 0;
};

} // namespace

std::optional<PdftkCall> parsePdftkCall(const Words &arguments)
{
    WordReader words(arguments);
    PdftkCall call;
    call.input = words.next();
    call.infoFile = words.valueOf("update_info");
    call.output = words.valueOf("output").value_or("");
    call.ownerPassword = words.valueOf("owner_pw");
    call.userPassword = words.valueOf("user_pw");
    for (const PermissionWord &permission : permissionWords)
        call.allowed.*permission.allowed = words.takesPermission(permission.word);
    const bool complete = words.atEnd() && isPdfName(call.input) && isPdfName(call.output);
    return complete ? std::optional(call) : std::nullopt;
}

Words maskedPdftkArguments(const Words &arguments)
{
    Words masked = arguments;
    bool anyBefore = false, passwordNext = false;
    for (std::string &word : masked) {
        const bool keyword = !passwordNext && isPasswordKeyword(word);
        if (passwordNext || (anyBefore && !keyword && !isPermissionWord(word)))
            word = "********";
        passwordNext = keyword;
        anyBefore = anyBefore || keyword;
    }
    return masked;
}
