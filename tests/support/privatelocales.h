#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A folder of locales made for a test, so that none needs to be installed on the machine.
class PrivateLocales
{
public:
    /// Compiles `name`, for example "en_US.ISO-8859-1"; false when localedef fails.
    bool add(const QString &language, const QString &charset)
    {
        QProcess localedef;
        localedef.start(QStringLiteral("localedef"),
                        {QStringLiteral("--no-archive"), QStringLiteral("-i"), language,
                         QStringLiteral("-f"), charset,
                         folder.filePath(language + QLatin1Char('.') + charset)});
        // Warnings end it with status 1; the locale is written all the same.
        return localedef.waitForFinished(60000) && localedef.exitCode() <= 1;
    }

    QString path() const { return folder.path(); }

    /// Makes `name` the environment's locale, looked for in this folder first.
    void use(const char *name) const
    {
        qputenv("LOCPATH", folder.path().toLocal8Bit());
        qputenv("LC_ALL", name);
    }

private:
    QTemporaryDir folder;
};
