#include "pdftitle.h"

#include "text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr off_t trailerSize = 1024;
constexpr size_t infoObjectSize = 8192;
constexpr off_t crossReferenceSize = 20;

std::string readAt(int file, off_t offset, size_t size)
{
    std::string text(size, '\0');
    const ssize_t count = pread(file, text.data(), size, offset);
    text.resize(static_cast<size_t>(std::max<ssize_t>(count, 0)));
    return text;
}

std::optional<off_t> numberAfter(const std::string &text, const std::string &label)
{
    const size_t at = text.rfind(label);
    if (at == std::string::npos)
        return std::nullopt;
    return strtoll(text.c_str() + at + label.size(), nullptr, 10);
}

// Where the document information object begins, by way of the trailer and the cross-reference
// table, whose entries are of one size.
std::optional<off_t> infoOffset(int file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        return std::nullopt;
    const std::string trailer =
        readAt(file, std::max<off_t>(status.st_size - trailerSize, 0), trailerSize);
    const std::optional<off_t> table = numberAfter(trailer, "startxref\n");
    const std::optional<off_t> object = numberAfter(trailer, "/Info ");
    if (!table || !object)
        return std::nullopt;
    const std::string head = readAt(file, *table, 64);
    const size_t firstEntry = head.find('\n', head.find('\n') + 1);
    if (!head.starts_with("xref\n0 ") || firstEntry == std::string::npos)
        return std::nullopt;
    const off_t entry = *table + static_cast<off_t>(firstEntry) + 1 + *object * crossReferenceSize;
    return strtoll(readAt(file, entry, crossReferenceSize).c_str(), nullptr, 10);
}

std::string hexText(const std::u16string &text)
{
    std::string hex;
    for (const char16_t unit : text) {
        std::array<char, 5> digits{};
        snprintf(digits.data(), digits.size(), "%04X", static_cast<unsigned>(unit));
        hex += digits.data();
    }
    return hex;
}

} // namespace

void repairTitle(int file, const std::string &name)
{
    static const std::string opening = "/Title <";
    const std::optional<off_t> offset = infoOffset(file);
    if (!offset)
        return;
    const std::string object = readAt(file, *offset, infoObjectSize);
    const size_t start = object.find(opening) + opening.size();
    const size_t end = object.find('>', start);
    const std::string title = hexText(u"\uFEFF" + toUtf16(name));
    if (start < opening.size() || end == std::string::npos || end - start != title.size())
        return;
    [[maybe_unused]] const ssize_t written =
        pwrite(file, title.data(), title.size(), *offset + static_cast<off_t>(start));
}
