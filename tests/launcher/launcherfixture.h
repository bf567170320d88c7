#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// How a program has ended, and what it printed.
struct Ended
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

/// Waits for the end of `process`.
Ended ended(QProcess &process);

/// The installed program prints how it was started; a change of `version` keeps its size.
QByteArray programText(char version);

/// An installation of the command `tessaro` with a program that reports how it was started.
class LauncherFixture : public QObject
{
    Q_OBJECT

private slots:
    void init();

protected:
    using Variables = QStringList;

    /// Writes an executable file of the installed bundle's Contents.
    void write(const QString &name, const QByteArray &content) const;
    std::unique_ptr<QProcess> start(const Variables &variables,
                                    const QStringList &words = {}) const;
    Ended run(const Variables &variables, const QStringList &words = {}) const;
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /// A file of the user's bundle's Contents.
    QString own(const QString &name) const
    {
        return path(QStringLiteral("home/.local/share/tessaro/Tessaro.app/Contents/") + name);
    }
    Variables home() const { return {QStringLiteral("HOME=") + path(QStringLiteral("home"))}; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_prefix;
};
