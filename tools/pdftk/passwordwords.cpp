#include "passwordwords.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <strings.h>

namespace {

struct PasswordKind
{
    std::string_view keyword;
    std::string_view question;
};

constexpr std::array<PasswordKind, 3> passwordKinds = {{
    {"owner_pw", "enter the owner password"},
    {"user_pw", "enter the user password"},
    {"input_pw", ""},
}};

constexpr std::array<std::string_view, 25> publicWords = {
    "allow",         "printing",       "degradedprinting",  "modifycontents", "assembly",
    "copycontents",  "screenreaders",  "modifyannotations", "fillin",         "allfeatures",
    "encrypt_40bit", "encrypt_128bit", "encrypt_aes128",    "flatten",        "need_appearances",
    "compress",      "uncompress",     "keep_first_id",     "keep_final_id",  "drop_xfa",
    "drop_xmp",      "verbose",        "dont_ask",          "do_ask",         "output",
};

const PasswordKind *kindOf(const std::string &word)
{
    const auto *kind = std::find_if(passwordKinds.begin(), passwordKinds.end(),
                                    [&word](const PasswordKind &known) {
                                        return strcasecmp(known.keyword.data(), word.c_str()) == 0;
                                    });
    return kind == passwordKinds.end() ? nullptr : kind;
}

bool isPublic(const std::string &word)
{
    return std::find(publicWords.begin(), publicWords.end(), word) != publicWords.end();
}

} // namespace

std::vector<Role> rolesOf(const std::vector<std::string> &words)
{
    std::vector<Role> roles;
    bool passwordSeen = false;
    for (const std::string &word : words) {
        Role role = passwordSeen && !isPublic(word) ? Role::Hidden : Role::Shown;
        if (!roles.empty() && roles.back() == Role::Keyword)
            role = Role::Password;
        else if (kindOf(word))
            role = Role::Keyword;
        passwordSeen = passwordSeen || role == Role::Keyword;
        roles.push_back(role);
    }
    return roles;
}

std::string questionFor(const std::string &keyword)
{
    const PasswordKind *kind = kindOf(keyword);
    return kind ? std::string(kind->question) : "";
}
