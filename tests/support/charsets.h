#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// A charset of the C library's locales, and a text that it can hold.
struct CharsetSample
{
    const char *charset;
    QString text;
    /// `text` in the charset, from the C library's charmaps.
    QByteArray bytes;
};

/// Among them those that Qt 6 has no codec for, and one (BIG5-HKSCS) whose
/// last letter here might compose with another.
inline QList<CharsetSample> charsetSamples()
{
    using namespace Qt::StringLiterals;
    const auto hex = [](const char *digits) { return QByteArray::fromHex(digits); };
    return {
        {"UTF-8", u"caf\u00e9 \u65e5 \U0001F600"_s, "caf\u00e9 \u65e5 \U0001F600"},
        {"ISO-8859-1", u"caf\u00e9"_s, "caf\xE9"},
        {"EUC-JP", u"\u65e5\u672c"_s, hex("C6FCCBDC")},
        {"GEORGIAN-PS", u"\u10d0\u10d1\u10f0"_s, hex("C0C1E4")},
        {"ARMSCII-8", u"\u0540\u0561\u0575"_s, hex("D0B3DB")},
        {"EUC-TW", u"\u4e2d\u6587"_s, hex("C4E3C5C6")},
        {"KOI8-T", u"\u04b6\u04e3"_s, hex("8EA5")},
        {"RK1048", u"\u04d8\u049b"_s, hex("A39D")},
        {"PT154", u"\u049a\u04af"_s, hex("8D89")},
        {"EUC-KR", u"\ud55c\uae00"_s, hex("C7D1B1DB")},
        {"GB2312", u"\u4e2d\u6587"_s, hex("D6D0CEC4")},
        {"BIG5-HKSCS", u"\u4e2d\u00ca"_s, hex("A4A48866")},
        {"TCVN5712-1", u"Vi\u1ec7t A"_s, hex("5669D6742041")},
    };
}
