#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The content of the regular file at `path`; nothing, with errno set, when it cannot be read or is
/// no such file.
std::optional<std::string> readFile(const std::string &path);

/// The lines of `text` without their line feeds; a last line need not be ended by one.
std::vector<std::string> linesOf(const std::string &text);

void replaceAll(std::string &text, const std::string &from, const std::string &to);

/// Words to be replaced, and what by.
using Replacements = std::map<std::string, std::string, std::less<>>;

/// `text` with every one of the words replaced, the longest where several begin at the same place;
/// what has been put in is not looked at again.
std::string replaced(std::string_view text, const Replacements &words);

/// The folder part of `path`, "." when it has none, "/" for a name in the root folder.
std::string folderOf(const std::string &path);
/// The part of `path` after its last slash.
std::string fileNameOf(const std::string &path);
/// `path` itself when absolute, else below the current folder.
std::string absolutePath(const std::string &path);

using CodePoints = std::u32string;
using CodePointsView = std::u32string_view;

/// What stands for text that is malformed.
constexpr char32_t replacement = U'\uFFFD';

/// The characters of `bytes`, which are in `charset`; `replacement` for each byte that is malformed
/// there. A charset that the C library does not know counts as UTF-8.
CodePoints decoded(std::string_view bytes, const std::string &charset);
/// `text` in UTF-8.
std::string encoded(CodePointsView text);

/// The charset of the user's locale; "UTF-8" in the C and POSIX locales and where the locale
/// that the environment names is not installed.
std::string localeCharset();
