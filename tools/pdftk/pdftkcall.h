#pragma once

#include <optional>
#include <string>
#include <vector>

/// What a reader of an encrypted PDF may do without the owner password.
struct Permissions
{
    bool printing = false;
    bool modifyContents = false;
    bool copyContents = false;
    bool modifyAnnotations = false;
};

/// A call of the application:
/// IN.pdf [update_info FILE] output OUT.pdf [owner_pw X] [user_pw Y] [allow WORD]...
struct PdftkCall
{
    std::string input;
    std::optional<std::string> infoFile;
    std::string output;
    /// As they stand on the command line, not empty.
    std::optional<std::string> ownerPassword;
    std::optional<std::string> userPassword;
    Permissions allowed;
};

/// What the application calls, in a sentence.
constexpr const char *pdftkUsage =
    "usage: pdftk INPUT.pdf [update_info FILE] output OUTPUT.pdf [owner_pw PASSWORD] "
    "[user_pw PASSWORD] [allow printing] [allow modifycontents] [allow copycontents] "
    "[allow modifyannotations]";

/// The call that `arguments` make; nothing unless they are exactly of that form and in that order.
/// Keywords are compared without regard to case, as pdftk 2.02 and pdftk-java 3.3.2 do.
std::optional<PdftkCall> parsePdftkCall(const std::vector<std::string> &arguments);

/// `arguments`, of any form, as they may be shown: stars for each password, and for every other
/// word after the first one that is no keyword, as it may be the rest of a password with a blank.
std::vector<std::string> maskedPdftkArguments(const std::vector<std::string> &arguments);
