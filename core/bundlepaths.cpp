#include "bundlepaths.h"

#include <QDir>

namespace {

QString cutBeforeLast(const QString &text, QChar mark)
{
    return text.left(text.lastIndexOf(mark)); // left(-1) is the whole text
}

} // namespace

QString bundleFolder(const QString &executableFolder)
{
    return cutBeforeLast(cutBeforeLast(executableFolder, QLatin1Char('.')), QLatin1Char('/'));
}

QString pluginFolder(const QString &executableFolder)
{
    return QDir::cleanPath(executableFolder + QStringLiteral("/../Plugins"));
}
