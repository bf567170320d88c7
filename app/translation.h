#pragma once

#include <QStringList>

class QCoreApplication;

/// The languages that the program is translated into, such as "de" and "pt_BR".
QStringList translatedLanguages();

/// The one of them that the user's environment asks for (LANGUAGE, else LC_ALL, LC_MESSAGES, LANG);
/// "" for English.
QString wantedLanguage();

/// Whether the windows made from now on get texts in another language than English.
bool isTranslated();

/// Shows the texts of the windows made from now on in `language`, Qt's own too where the system
/// has translations of them (qt6-translations-l10n), and lets them run in its direction.
/// "" is English. Numbers and the like stay as the environment's locale writes them.
void installTranslators(QCoreApplication &application, const QString &language);
