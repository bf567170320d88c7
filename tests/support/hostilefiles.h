#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <sys/resource.h>

/// The 200 hostile files of make-hostile, in a folder of their own.
class HostileFiles
{
public:
    /// Makes the files; the script's complaint, or "" when it had none.
    QString make()
    {
        QProcess script;
        script.setProcessChannelMode(QProcess::MergedChannels);
        script.start(QStringLiteral(MAKE_HOSTILE), {QStringLiteral(SAMPLES), path()});
        if (!script.waitForFinished(120000))
            return QStringLiteral("make-hostile did not run: ") + script.errorString();
        return QString::fromLocal8Bit(script.readAll());
    }

    QString path() const { return folder.filePath(QStringLiteral("hostile")); }

    QList<QUrl> urls() const
    {
        QList<QUrl> result;
        const auto filter = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
        const QStringList names = QDir(path()).entryList(filter, QDir::Name);
        for (const QString &name : names)
            result << QUrl::fromLocalFile(path() + QLatin1Char('/') + name);
        return result;
    }

    /// Removes the file that is to vanish after it was listed.
    void letOneVanish() const
    {
        const QStringList names = QDir(path()).entryList({QStringLiteral("*vanishes*")});
        for (const QString &name : names)
            QFile::remove(path() + QLatin1Char('/') + name);
    }

private:
    QTemporaryDir folder;
};

constexpr qint64 maxMemory = qint64(4) * 1024 * 1024 * 1024;

/// Largest resident size so far, in bytes, of this process or of any of its ended children.
inline qint64 peakMemory(int who)
{
    rusage usage = {};
    getrusage(static_cast<__rusage_who>(who), &usage);
    return qint64(usage.ru_maxrss) * 1024;
}
