#pragma once

#include <QStringList>

class QCoreApplication;

/// The languages that the program is translated into, such as "de" and "pt_BR".
QStringList translatedLanguages();

/// The one of them that the user's environment asks for (LANGUAGE, else LC_ALL, LC_MESSAGES, LANG);
/// "" for English.
QString wantedLanguage();

/// Whether windows made from now on are in another language than English.
bool isTranslated();

/// Sets language and direction of the windows made from now on; "" is English. Qt's own texts too,
/// if the system has their translations (qt6-translations-l10n). Numbers keep the format of the
/// environment's locale.
void installTranslators(QCoreApplication &application, const QString &language);
