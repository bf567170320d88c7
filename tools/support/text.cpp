#include "text.h"

#include "diagnosis.h"
#include "filedescriptor.h"

#include <algorithm>
#include <array>
#include <climits>
#include <clocale>

#include <fcntl.h>
#include <iconv.h>
#include <langinfo.h>
#include <unistd.h>

namespace {

struct Utf8Form
{
    unsigned char mask, lead;
    char32_t smallest, largest;
};

// One row per length of a UTF-8 character: what its first byte looks like, and what it may mean.
constexpr std::array<Utf8Form, 4> utf8Forms = {{
    {0x80, 0x00, 0x0, 0x7F},
    {0xE0, 0xC0, 0x80, 0x7FF},
    {0xF0, 0xE0, 0x800, 0xFFFF},
    {0xF8, 0xF0, 0x10000, 0x10FFFF},
}};

constexpr const char *replacementCharacter = "\xEF\xBF\xBD";

unsigned char byteAt(std::string_view text, size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

bool continues(std::string_view text, size_t position, size_t length)
{
    for (size_t i = position + 1; i < position + length; ++i) {
        if (i >= text.size() || (byteAt(text, i) & 0xC0) != 0x80)
            return false;
    }
    return true;
}

std::string decode(iconv_t converter, const std::string &bytes)
{
    std::string result;
    std::string input = bytes;
    char *from = input.data();
    size_t left = input.size();
    while (left > 0) {
        std::array<char, 1024> buffer{};
        char *to = buffer.data();
        size_t room = buffer.size();
        const size_t done = iconv(converter, &from, &left, &to, &room);
        result.append(buffer.data(), to);
        // E2BIG, the only other failure, leaves a buffer that was filled and is now emptied.
        if (done == static_cast<size_t>(-1) && to == buffer.data()) {
            result += replacementCharacter;
            ++from;
            --left;
        }
    }
    return result;
}

} // namespace

bool readFile(const std::string &path, std::string &content)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    std::array<char, 16384> buffer{};
    ssize_t count = -1;
    while (file.valid() && (count = read(file.get(), buffer.data(), buffer.size())) > 0)
        content.append(buffer.data(), static_cast<size_t>(count));
    return count == 0;
}

std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find('\n', start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

void replaceAll(std::string &text, const std::string &from, const std::string &to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
        text.replace(at, from.size(), to);
        at += to.size();
    }
}

std::string folderOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string fileNameOf(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string absolutePath(const std::string &path)
{
    if (path.starts_with('/'))
        return path;
    std::array<char, PATH_MAX> folder{};
    if (!getcwd(folder.data(), folder.size()))
        throw systemError("cannot find the current folder of", path);
    return std::string(folder.data()) + "/" + path;
}

size_t utf8Length(std::string_view text, size_t position)
{
    for (size_t length = 1; length <= utf8Forms.size(); ++length) {
        const Utf8Form &form = utf8Forms[length - 1];
        if ((byteAt(text, position) & form.mask) != form.lead)
            continue;
        if (!continues(text, position, length))
            return 0;
        const char32_t code = codePointAt(text, position, length);
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        return code >= form.smallest && code <= form.largest && !surrogate ? length : 0;
    }
    return 0;
}

bool isUtf8(std::string_view text)
{
    size_t length = 0;
    for (size_t i = 0; i < text.size(); i += length) {
        length = utf8Length(text, i);
        if (length == 0)
            return false;
    }
    return true;
}

char32_t codePointAt(std::string_view text, size_t position, size_t length)
{
    const auto lead = static_cast<unsigned char>(~utf8Forms[length - 1].mask);
    char32_t code = byteAt(text, position) & lead;
    for (size_t i = position + 1; i < position + length; ++i)
        code = code << 6 | (byteAt(text, i) & 0x3FU);
    return code;
}

std::string toUtf8(const std::string &bytes, const std::string &charset)
{
    if (charset == "UTF-8" && isUtf8(bytes))
        return bytes;
    const iconv_t converter = iconv_open("UTF-8", charset.c_str());
    // iconv_open's failure value is the pointer -1; comparing numbers needs no cast of ours.
    if (reinterpret_cast<intptr_t>(converter) == -1)
        throw ToolError("cannot read text in the charset " + charset);
    std::string result = decode(converter, bytes);
    iconv_close(converter);
    return result;
}

std::string localeCharset()
{
    setlocale(LC_CTYPE, "");
    const std::string charset = nl_langinfo(CODESET);
    return charset == "ANSI_X3.4-1968" ? "UTF-8" : charset;
}

std::u16string toUtf16(const std::string &name)
{
    std::u16string units;
    for (size_t i = 0, length = 0; i < name.size(); i += std::max<size_t>(length, 1)) {
        length = utf8Length(name, i);
        const char32_t code = length == 0 ? U'\0' : codePointAt(name, i, length);
        const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0);
        if (code > 0xFFFF) {
            units += static_cast<char16_t>(0xD7C0 + (code >> 10));
            units += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
        } else {
            units += control ? u'_' : static_cast<char16_t>(code);
        }
    }
    return units;
}

std::string safeFileName(const std::string &name)
{
    std::string safe;
    for (const char16_t unit : toUtf16(name)) {
        if (unit > 0xFF) {
            safe += '_';
        } else if (unit > 0x7F) {
            safe += static_cast<char>(0xC0 | (unit >> 6));
            safe += static_cast<char>(0x80 | (unit & 0x3F));
        } else {
            safe += static_cast<char>(unit);
        }
    }
    return safe;
}
