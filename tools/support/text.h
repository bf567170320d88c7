#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The whole file at `path`, of any kind and size, in `content`; false when it cannot be read.
bool readFile(const std::string &path, std::string &content);

/// The lines of `text` without their line feeds; a last line need not be ended by one.
std::vector<std::string> linesOf(const std::string &text);

void replaceAll(std::string &text, const std::string &from, const std::string &to);

/// The folder part of `path`, "." when it has none, "/" for a name in the root folder.
std::string folderOf(const std::string &path);
/// The part of `path` after its last slash.
std::string fileNameOf(const std::string &path);
/// `path` itself when absolute, else below the current folder.
std::string absolutePath(const std::string &path);

/// Bytes of the UTF-8 character that starts at `position`, or 0 when it is malformed there
/// (overlong forms, surrogates and values above U+10FFFF count as malformed).
size_t utf8Length(std::string_view text, size_t position);
bool isUtf8(std::string_view text);
/// The code point of the well-formed character of `length` bytes at `position`.
char32_t codePointAt(std::string_view text, size_t position, size_t length);

/// `bytes` in UTF-8. Well-formed UTF-8 stays as it is when `charset` says UTF-8 or ASCII; else
/// it is decoded from `charset`, and what that cannot decode becomes U+FFFD.
std::string toUtf8(const std::string &bytes, const std::string &charset);

/// The charset of the user's locale; "UTF-8" in the C and POSIX locales and where the locale
/// that the environment names is not installed.
std::string localeCharset();

/// `name` in UTF-16; control characters and malformed bytes become '_'.
std::u16string toUtf16(const std::string &name);

/// `name` as a file name that both tools take literally: as many characters as toUtf16() has
/// units, those outside Latin-1 as '_' (ImageMagick 6.9.11 cannot write any other as a title).
std::string safeFileName(const std::string &name);
