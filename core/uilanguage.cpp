#include "uilanguage.h"

#include <QLocale>

#include <algorithm>

QString uiLanguage(const QStringList &wanted, const QStringList &available)
{
    for (const QString &name : wanted) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return {};
        const auto found = std::ranges::find_if(available, [&locale](const QString &language) {
            const QLocale candidate(language);
            return candidate.language() == locale.language() &&
                   candidate.script() == locale.script();
        });
        if (found != available.end())
            return *found;
    }
    return {};
}
