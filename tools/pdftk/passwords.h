#pragma once

#include "pdftkcall.h"

#include <optional>
#include <string>

/// How a PDF is encrypted. The passwords are UTF-8; at most 127 bytes of each count.
struct Encryption
{
    std::string ownerPassword;
    /// Empty when the PDF opens without a password.
    std::string userPassword;
    Permissions allowed;
};

/// The encryption that `call` asks for: none without a password, whatever it allows. Passwords are
/// read as UTF-8, else in `charset`, and normalized by SASLprep, as PDF 2.0 has it. Throws
/// ToolError for a password with a line break and for two equal ones.
std::optional<Encryption> encryptionOf(const PdftkCall &call, const std::string &charset);
