#include "pdftkcall.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr const char *mask = "********";
// pdftk 2.02 and pdftk-java 3.3.2 drop the rest, and print it.
constexpr size_t longestPassword = 32;

struct PasswordKind
{
    std::string_view word;
    /// What the tool asks, in the words of pdftk 2.02 and pdftk-java 3.3.2.
    std::string_view question;
};

constexpr std::array<PasswordKind, 2> passwordKinds = {{
    {"owner_pw", "enter the owner password"},
    {"user_pw", "enter the user password"},
}};

constexpr std::array<std::string_view, 25> publicWords = {
    "allow",         "printing",       "degradedprinting",  "modifycontents", "assembly",
    "copycontents",  "screenreaders",  "modifyannotations", "fillin",         "allfeatures",
    "encrypt_40bit", "encrypt_128bit", "encrypt_aes128",    "flatten",        "need_appearances",
    "compress",      "uncompress",     "keep_first_id",     "keep_final_id",  "drop_xfa",
    "drop_xmp",      "verbose",        "dont_ask",          "do_ask",         "output",
};

const PasswordKind *passwordKind(const std::string &word)
{
    const auto *kind =
        std::find_if(passwordKinds.begin(), passwordKinds.end(),
                     [&word](const PasswordKind &known) { return known.word == word; });
    return kind == passwordKinds.end() ? nullptr : kind;
}

std::string publicWord(const std::string &word)
{
    const bool known = passwordKind(word) ||
                       std::find(publicWords.begin(), publicWords.end(), word) != publicWords.end();
    return known ? word : mask;
}

std::string firstCharacters(const std::string &text, size_t count)
{
    size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += std::max<size_t>(utf8Length(text, end), 1);
    return text.substr(0, end);
}

// pdftk-java 3.3.2 refuses equal passwords on its command line only; so that is where two equal
// words stand for them.
void refuseEqualPasswords(PdftkCall &call)
{
    if (call.passwords.size() != 2 || call.passwords[0].answer != call.passwords[1].answer)
        return;
    std::replace(call.tail.begin(), call.tail.end(), std::string("PROMPT"), std::string(mask));
    call.passwords.clear();
}

void readTail(const std::vector<std::string> &words, const std::string &charset, PdftkCall &call)
{
    for (size_t i = 0; i < words.size(); ++i) {
        call.tail.push_back(publicWord(words[i]));
        const PasswordKind *kind = passwordKind(words[i]);
        if (!kind || i + 1 == words.size())
            continue;
        ++i;
        call.tail.emplace_back("PROMPT");
        // The application hands over UTF-8 in every locale, a terminal the locale's charset.
        const std::string password = isUtf8(words[i]) ? words[i] : toUtf8(words[i], charset);
        call.passwords.push_back(
            {std::string(kind->question), firstCharacters(password, longestPassword)});
    }
    refuseEqualPasswords(call);
}

} // namespace

std::optional<PdftkCall> parsePdftkCall(const std::vector<std::string> &arguments,
                                        const std::string &charset)
{
    const bool described = arguments.size() > 1 && arguments[1] == "update_info";
    const size_t output = described ? 3 : 1;
    if (arguments.size() < output + 2 || arguments[output] != "output" ||
        !arguments[output + 1].ends_with(".pdf"))
        return std::nullopt;
    PdftkCall call;
    call.input = arguments[0];
    call.infoFile = described ? arguments[2] : "";
    call.output = arguments[output + 1];
    const auto tail = arguments.begin() + static_cast<ptrdiff_t>(output) + 2;
    readTail({tail, arguments.end()}, charset, call);
    return call;
}

std::vector<std::string> maskedPdftkArguments(const std::vector<std::string> &arguments)
{
    constexpr std::array<std::string_view, 3> keywords = {"owner_pw", "user_pw", "input_pw"};
    std::vector<std::string> masked = arguments;
    const auto first =
        std::find_first_of(masked.begin(), masked.end(), keywords.begin(), keywords.end());
    bool value = false;
    for (auto word = first; word != masked.end(); ++word) {
        const bool keyword =
            !value && std::find(keywords.begin(), keywords.end(), *word) != keywords.end();
        if (!keyword)
            *word = value ? mask : publicWord(*word);
        value = keyword;
    }
    return masked;
}
