#include "localecodec.h"

#include <QTextCodec>

#include <langinfo.h>
#include <locale.h>

namespace {

// Qt (6.4) moves the process itself to a UTF-8 locale, so the environment is asked anew.
QByteArray environmentCharset()
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr)
        return {};
    QByteArray charset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    return charset;
}

} // namespace

QTextCodec *localeCodec()
{
    const QByteArray charset = environmentCharset();
    QTextCodec *codec = nullptr;
    if (charset != "ANSI_X3.4-1968") // glibc's name for the C locale's ASCII
        codec = QTextCodec::codecForName(charset);
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}
