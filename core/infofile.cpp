#include "infofile.h"

#include "blanks.h"

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

QString infoFile(const Description &description)
{
    QString text;
    for (const InfoField &field : infoFields) {
        text += QStringLiteral("InfoKey:%1\n").arg(QLatin1String(field.key));
        text += QStringLiteral("InfoValue:") + description.*field.value + QLatin1Char('\n');
    }
    return text;
}
