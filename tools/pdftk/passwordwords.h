#pragma once

#include <string>
#include <vector>

/// What a word of pdftk's command line is, as far as passwords are concerned.
enum class Role {
    /// Anything before the first password, and later on words that pdftk itself has.
    Shown,
    /// A word that a password follows.
    Keyword,
    Password,
    /// Any other word behind a password: the rest of one with a blank in it, for all we know.
    Hidden,
};

/// The role of each of `words`. pdftk 2.02 and pdftk-java 3.3.2 take keywords in any case.
std::vector<Role> rolesOf(const std::vector<std::string> &words);

/// What the tool asks for the password that belongs to `keyword`, in the words of pdftk 2.02 and
/// pdftk-java 3.3.2; "" when it is no keyword of the output's passwords.
std::string questionFor(const std::string &keyword);
