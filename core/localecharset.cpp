#include "localecharset.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <memory>

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

namespace {

constexpr auto failed = static_cast<std::size_t>(-1);

using Converter = std::unique_ptr<void, int (*)(iconv_t)>;

/// From UTF-8 to `charset`; null where the C library has no such conversion.
Converter converterTo(const QByteArray &charset)
{
    const iconv_t converter = iconv_open(charset.constData(), "UTF-8");
    // On failure the pointer is -1, which is compared as a number.
    const bool open = reinterpret_cast<std::intptr_t>(converter) != -1;
    return {open ? converter : nullptr, iconv_close};
}

bool continuesCharacter(char byte)
{
    return (byte & 0xC0) == 0x80;
}

/// Replaces the first character of the remaining text by "?", which every charset of a locale has:
/// it is in POSIX's portable character set.
void replaceFirstCharacter(char *&text, std::size_t &size)
{
    while (size > 1 && continuesCharacter(text[1])) {
        ++text;
        --size;
    }
    *text = '?';
}

QByteArray converted(QByteArray utf8, iconv_t converter)
{
    QByteArray result;
    char *text = utf8.data();
    auto size = static_cast<std::size_t>(utf8.size());
    for (bool complete = false; !complete;) {
        std::array<char, 1024> buffer{};
        char *end = buffer.data();
        std::size_t room = buffer.size();
        // Without text it writes what it kept to combine with a next character.
        complete = size == 0;
        const std::size_t done = iconv(converter, complete ? nullptr : &text, &size, &end, &room);
        result.append(buffer.data(), end - buffer.data());
        if (done == failed && errno == EILSEQ)
            replaceFirstCharacter(text, size);
    }
    return result;
}

} // namespace

QByteArray localeCharset()
{
    // Qt (6.4) moves the process itself to a UTF-8 locale, so the environment is read again.
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr)
        return QByteArrayLiteral("UTF-8");
    const QByteArray charset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    // glibc's name for the C locale's ASCII
    return charset == "ANSI_X3.4-1968" ? QByteArrayLiteral("UTF-8") : charset;
}

QByteArray encoded(const QString &text, const QByteArray &charset)
{
    const Converter converter = converterTo(charset);
    return converter ? converted(text.toUtf8(), converter.get()) : text.toUtf8();
}
