#pragma once

#include <string>

/// The info file `content`, written in `charset`, in the form that update_info reads without loss:
/// "InfoBegin" before every pair, and values in ASCII with numeric entities, line breaks in them
/// included. "" when it does not begin with a pair; it is then in that newer form already, or no
/// info file at all, and for the tool to read as it is.
///
/// pdftk-java 3.3.2 keeps only the first pair of a file without "InfoBegin", swallows one blank
/// after "InfoValue:", decodes entities, and reads other text in the JVM's charset.
std::string losslessInfo(const std::string &content, const std::string &charset);
