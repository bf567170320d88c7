#include "text.h"

#include "error.h"
#include "filedescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <clocale>
#include <utility>

#include <fcntl.h>
#include <iconv.h>
#include <langinfo.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// iconv_open's failure value is the pointer -1; comparing numbers needs no cast of ours.
bool isOpen(iconv_t converter)
{
    return reinterpret_cast<intptr_t>(converter) != -1;
}

struct Converter
{
    Converter(const char *to, const char *from)
        : handle(iconv_open(to, from))
    {
        if (!isOpen(handle))
            handle = iconv_open(to, "UTF-8");
        if (!isOpen(handle))
            throw systemError("cannot convert text to", to);
    }
    Converter(const Converter &) = delete;
    Converter &operator=(const Converter &) = delete;
    ~Converter() { iconv_close(handle); }

    iconv_t handle;
};

// For each unit that cannot be converted there is one `forMalformed`.
template <typename To, typename From>
std::basic_string<To> converted(const Converter &converter, std::basic_string_view<From> text,
                                To forMalformed)
{
    std::basic_string<To> result;
    std::basic_string<From> input(text);
    auto *from = reinterpret_cast<char *>(input.data());
    size_t left = input.size() * sizeof(From);
    while (left > 0) {
        std::array<To, 1024> buffer{};
        auto *to = reinterpret_cast<char *>(buffer.data());
        size_t room = sizeof buffer;
        const size_t done = iconv(converter.handle, &from, &left, &to, &room);
        result.append(buffer.data(), buffer.size() - room / sizeof(To));
        if (done == static_cast<size_t>(-1) && errno != E2BIG) {
            result += forMalformed;
            from += sizeof(From);
            left -= sizeof(From);
        }
    }
    return result;
}

// glibc 2.36 decodes such numbers from UTF-8.
bool isBeyondUnicode(char32_t code)
{
    return code > 0x10FFFF;
}

// Of the words that `text` may begin with, the longest is the last that does not sort behind it;
// if that one is another word, the next shorter can only be a beginning that both share.
Replacements::const_iterator longestPrefix(std::string_view text, const Replacements &words)
{
    for (auto word = words.upper_bound(text); word != words.begin() && !text.empty();
         word = words.upper_bound(text)) {
        --word;
        if (text.starts_with(word->first))
            return word;
        const auto [differs, unused] =
            std::mismatch(text.begin(), text.end(), word->first.begin(), word->first.end());
        text = text.substr(0, static_cast<size_t>(differs - text.begin()));
    }
    return words.end();
}

} // namespace

std::optional<std::string> readFile(const std::string &path)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (!file.valid() || fstat(file.get(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return std::nullopt;
    }
    std::string content;
    std::array<char, 16384> buffer{};
    ssize_t count = -1;
    while ((count = read(file.get(), buffer.data(), buffer.size())) > 0)
        content.append(buffer.data(), static_cast<size_t>(count));
    return count == 0 ? std::optional(std::move(content)) : std::nullopt;
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

std::string replaced(std::string_view text, const Replacements &words)
{
    std::string result;
    while (!text.empty()) {
        const auto word = longestPrefix(text, words);
        if (word == words.end()) {
            result += text.front();
            text.remove_prefix(1);
        } else {
            result += word->second;
            text.remove_prefix(word->first.size());
        }
    }
    return result;
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

CodePoints decoded(std::string_view bytes, const std::string &charset)
{
    CodePoints text =
        converted<char32_t, char>(Converter("WCHAR_T", charset.c_str()), bytes, replacement);
    std::replace_if(text.begin(), text.end(), isBeyondUnicode, replacement);
    return text;
}

std::string encoded(CodePointsView text)
{
    return converted<char, char32_t>(Converter("UTF-8", "WCHAR_T"), text, '?');
}

std::string localeCharset()
{
    static const std::string charset = (setlocale(LC_CTYPE, ""), nl_langinfo(CODESET));
    return charset == "ANSI_X3.4-1968" ? "UTF-8" : charset;
}
