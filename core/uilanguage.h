#pragma once

#include <QString>
#include <QStringList>

/// The language in `available` (such as "de" and "pt_BR") for a user who prefers `wanted` (such as
/// "pt-PT"), in that order; "" for English, which ends the search, and if there is none. Language
/// and script have to match: zh-HK finds zh_TW, and pt-PT finds pt_BR.
QString uiLanguage(const QStringList &wanted, const QStringList &available);
