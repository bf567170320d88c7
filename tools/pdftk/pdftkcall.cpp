#include "pdftkcall.h"

#include "error.h"
#include "passwordwords.h"
#include "text.h"

#include <algorithm>

namespace {

using Words = std::vector<std::string>;

constexpr const char *mask = "********";
// pdftk 2.02 and pdftk-java 3.3.2 drop the rest, and print it.
constexpr size_t longestPassword = 32;
// What ends a line for the JVM (OpenJDK 17): the answer would be taken for two.
constexpr std::u32string_view lineBreaks = U"\n\r\u0085\u2028\u2029";

// How many words come before passwords and permissions; 0 for a call of another shape.
size_t wordsBeforeTail(const Words &arguments)
{
    const size_t output = arguments.size() > 1 && arguments[1] == "update_info" ? 3 : 1;
    const bool ours = arguments.size() >= output + 2 && arguments[output] == "output" &&
                      !arguments[output + 1].empty() && arguments[output + 1] != "-";
    return ours ? output + 2 : 0;
}

// The application hands over UTF-8 in every locale, a terminal the locale's charset.
CodePoints typed(const std::string &word, const std::string &charset)
{
    CodePoints text = decoded(word, "UTF-8");
    return text.find(replacement) == text.npos ? text : decoded(word, charset);
}

std::string answerOf(const std::string &word, const std::string &charset)
{
    const CodePoints password = typed(word, charset);
    if (password.find_first_of(lineBreaks) != password.npos)
        throw ToolError("a password must not hold a line break");
    return encoded(password.substr(0, longestPassword));
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

void readTail(const Words &words, const std::string &charset, PdftkCall &call)
{
    const std::vector<Role> roles = rolesOf(words);
    for (size_t i = 0; i < words.size(); ++i) {
        const bool open = roles[i] == Role::Shown || roles[i] == Role::Keyword;
        const std::string question = roles[i] == Role::Password ? questionFor(words[i - 1]) : "";
        if (!question.empty())
            call.passwords.push_back({question, answerOf(words[i], charset)});
        call.tail.push_back(open ? words[i] : question.empty() ? mask : "PROMPT");
    }
    refuseEqualPasswords(call);
}

} // namespace

std::optional<PdftkCall> parsePdftkCall(const Words &arguments, const std::string &charset)
{
    const size_t before = wordsBeforeTail(arguments);
    if (before == 0)
        return std::nullopt;
    PdftkCall call;
    call.input = arguments[0];
    call.infoFile = before > 3 ? arguments[2] : "";
    call.output = arguments[before - 1];
    readTail({arguments.begin() + static_cast<ptrdiff_t>(before), arguments.end()}, charset, call);
    return call;
}

Words maskedPdftkArguments(const Words &arguments)
{
    const auto before = static_cast<ptrdiff_t>(wordsBeforeTail(arguments));
    const std::vector<Role> roles = rolesOf({arguments.begin() + before, arguments.end()});
    Words masked = arguments;
    for (size_t i = 0; i < roles.size(); ++i) {
        if (roles[i] == Role::Password || roles[i] == Role::Hidden)
            masked[static_cast<size_t>(before) + i] = mask;
    }
    return masked;
}
