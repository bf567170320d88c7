#include "translation.h"

#include "uilanguage.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

QString translationFolder()
{
    return QStringLiteral(":/translations");
}

void install(QCoreApplication &application, const QString &catalogue, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>(&application);
    if (translator->load(catalogue, folder))
        QCoreApplication::installTranslator(translator.release()); // the application owns it
}

} // namespace

QStringList translatedLanguages()
{
    QStringList languages = QDir(translationFolder()).entryList({QStringLiteral("tessaro_*.qm")});
    for (QString &language : languages)
        language = language.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    return languages;
}

QString wantedLanguage()
{
    return uiLanguage(QLocale::system().uiLanguages(), translatedLanguages());
}

bool isTranslated()
{
    return !QCoreApplication::instance()
                ->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly)
                .isEmpty();
}

void installTranslators(QCoreApplication &application, const QString &language)
{
    qDeleteAll(application.findChildren<QTranslator *>(Qt::FindDirectChildrenOnly));
    if (!language.isEmpty()) {
        install(application, QStringLiteral("qtbase_") + language,
                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        install(application, QStringLiteral("tessaro_") + language, translationFolder());
    }
    if (qobject_cast<QGuiApplication *>(&application))
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
}
