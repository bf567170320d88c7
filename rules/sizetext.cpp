#include "sizetext.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

/// As printf's "%14.3f" and `unit`, at a tenth of Qt's time: a list may get thousands.
QString text(double value, const char (&unit)[3])
{
    constexpr std::ptrdiff_t width = 14;
    std::array<char, width> digits{};
    char *end =
        std::to_chars(digits.data(), digits.data() + width, value, std::chars_format::fixed, 3).ptr;
    std::array<char, width + 2> padded{};
    padded.fill(' ');
    std::copy_backward(digits.data(), end, padded.data() + width);
    std::copy_n(unit, 2, padded.data() + width);
    return QString::fromLatin1(padded.data(), padded.size());
}

} // namespace

QString sizeText(qint64 bytes)
{
    const auto size = static_cast<qint32>(bytes);
    if (size <= 0)
        return {};
    // The switch point is a power of two and the divisors are powers of ten on purpose.
    if (size < 1024 * 1024 + 1)
        return text(size / 1000.0, "KB");
    return text(size / 1000000.0, "MB");
}
