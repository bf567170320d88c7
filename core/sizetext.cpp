#include "sizetext.h"

#include <QStringBuilder>

#include <array>
#include <charconv>

namespace {

/// As printf's "%14.3f" and `unit`. QString::asprintf() takes three times as long, noticeable
/// with thousands of rows, and QString::number() rounds a tie up where printf takes the even digit.
QString text(double value, QLatin1String unit)
{
    std::array<char, 16> buffer{};
    const auto written =
        std::to_chars(buffer.begin(), buffer.end(), value, std::chars_format::fixed, 3);
    const QLatin1String number(buffer.data(), written.ptr - buffer.data());
    constexpr QStringView field = u"              "; // 14 wide
    return field.first(field.size() - number.size()) % number % unit;
}

} // namespace

QString sizeText(qint64 bytes)
{
    const auto size = static_cast<qint32>(bytes);
    if (size <= 0)
        return {};
    // The switch point is a power of two and the divisors are powers of ten on purpose.
    if (size < 1024 * 1024 + 1)
        return text(size / 1000.0, QLatin1String("KB"));
    return text(size / 1000000.0, QLatin1String("MB"));
}
