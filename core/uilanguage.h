#pragma once

#include <QString>
#include <QStringList>

/// The one of `available` (such as "de" and "pt_BR") that suits a user who wants `wanted` (such as
/// "pt-PT"), the favourite first; "" for English, the language of the program's own texts, which
/// ends the search, and when none suits. Languages suit that agree in language and script, so that
/// zh-HK finds zh_TW and pt-PT finds pt_BR.
QString uiLanguage(const QStringList &wanted, const QStringList &available);
