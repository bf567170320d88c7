#include "infofile.h"

#include "blanks.h"

#include <QTextCodec>

#include <algorithm>
#include <array>

namespace {

struct InfoField
{
    const char *key;
    QString Description::*value;
};

constexpr std::array<InfoField, 4> infoFields{{
    {"Title", &Description::title},
    {"Subject", &Description::subject},
    {"Keywords", &Description::keywords},
    {"Author", &Description::author},
}};

} // namespace

bool isBlank(const Description &description)
{
    return std::ranges::all_of(infoFields, [&description](const InfoField &field) {
        return isBlank(description.*field.value);
    });
}

QByteArray infoFile(const Description &description, const QTextCodec &codec)
{
    QString text;
    for (const InfoField &field : infoFields) {
        text += QStringLiteral("InfoKey:%1\n").arg(QLatin1String(field.key));
        text += QStringLiteral("InfoValue:") + description.*field.value + QLatin1Char('\n');
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec.fromUnicode(text.constData(), static_cast<int>(text.size()), &state);
}
