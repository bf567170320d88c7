#pragma once

#include "subprocess.h"

#include <optional>
#include <string>
#include <vector>

/// A call of the application's shape: IN [update_info FILE] output OUT, then passwords and
/// permissions.
struct PdftkCall
{
    std::string input;
    /// "" when there is no description to write.
    std::string infoFile;
    std::string output;
    /// The words after the output file, fit for a command line that everybody can see: PROMPT
    /// stands for each password, and what can only be the rest of a password with a blank in it
    /// is hidden too (the tool refuses it, hidden or not).
    std::vector<std::string> tail;
    /// The passwords, as answers to the tool's questions.
    std::vector<Prompt> passwords;
};

/// The call that `arguments` make, or nothing when they are of another shape. `charset` is what
/// passwords are decoded from that are not UTF-8. Throws ToolError for a password with a line break
/// in it, which the tool would cut short, and for one in a call of another shape, which the tool
/// would show.
std::optional<PdftkCall> parsePdftkCall(const std::vector<std::string> &arguments,
                                        const std::string &charset);

/// `arguments`, of any shape, as they may be shown: nothing after a password's keyword but words
/// that pdftk itself has.
std::vector<std::string> maskedPdftkArguments(const std::vector<std::string> &arguments);
