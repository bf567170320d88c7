#include "commandline.h"

#include <QCoreApplication>
#include <QFileInfo>

QString quoted(const QString &path)
{
    return QLatin1Char('"') + path + QLatin1Char('"');
}

QString quoted(const QStringList &paths)
{
    return quoted(paths.join(QStringLiteral("\" \"")));
}

QString unquoted(QString quotedPath)
{
    return quotedPath.remove(QLatin1Char('"'));
}

QString toolPath(const QString &name)
{
    return quoted(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name);
}

QString outputPath(const QString &folder, const QString &imagePath)
{
    return quoted(folder + QLatin1Char('/') + QFileInfo(imagePath).baseName() +
                  QStringLiteral(".pdf"));
}

QString intermediatePath(const QString &folder, const QString &quotedOutput)
{
    return folder + QLatin1Char('/') + QFileInfo(quotedOutput).baseName() +
           QStringLiteral("-1.pdf");
}
