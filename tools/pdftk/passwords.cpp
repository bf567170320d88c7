#include "passwords.h"

#include "error.h"
#include "text.h"

#include <cstdlib>

#include <stringprep.h>

namespace {

constexpr CodePointsView lineBreaks = U"\n\r\u0085\u2028\u2029";

// The application hands over UTF-8 in every locale, a terminal the locale's charset.
std::string typed(const std::string &word, const std::string &charset)
{
    CodePoints text = decoded(word, "UTF-8");
    if (text.find(replacement) != CodePoints::npos)
        text = decoded(word, charset);
    if (text.find_first_of(lineBreaks) != CodePoints::npos)
        throw ToolError("a password must not hold a line break");
    return encoded(text);
}

// What SASLprep refuses, such as a mix of Hebrew and Latin letters, stays as it was typed; so does
// what it would leave nothing of, such as a soft hyphen.
std::string normalized(const std::string &password)
{
    char *result = nullptr;
    constexpr auto unassignedAllowed = Stringprep_profile_flags{};
    if (stringprep_profile(password.c_str(), &result, "SASLprep", unassignedAllowed) !=
        STRINGPREP_OK)
        return password;
    std::string text = result;
    free(result);
    return text.empty() ? password : text;
}

// libqpdf 11.3 makes a PDF that no password opens of a longer one.
std::string shortened(const std::string &password)
{
    constexpr size_t maxLength = 127;
    return password.substr(0, maxLength);
}

} // namespace

std::optional<Encryption> encryptionOf(const PdftkCall &call, const std::string &charset)
{
    if (!call.ownerPassword && !call.userPassword)
        return std::nullopt;
    Encryption encryption;
    encryption.allowed = call.allowed;
    if (call.userPassword)
        encryption.userPassword = shortened(normalized(typed(*call.userPassword, charset)));
    // A user password alone is the owner password too, as with pdftk-java 3.3.2. As typed, it opens
    // the PDF in readers without SASLprep (poppler 22.12, mupdf 1.21, qpdf 11.3).
    encryption.ownerPassword = call.ownerPassword
                                   ? shortened(normalized(typed(*call.ownerPassword, charset)))
                                   : shortened(typed(*call.userPassword, charset));
    if (call.ownerPassword && encryption.ownerPassword == encryption.userPassword)
        throw ToolError("the owner password and the user password must differ");
    return encryption;
}
