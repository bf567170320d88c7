#pragma once

#include <QString>
#include <QStringList>

/// What the program was started with, as typed.
struct StartArguments
{
    bool wantsHelp = false;
    bool wantsVersion = false;
    /// As typed, without values; Qt's own options are among them until a QApplication has taken
    /// them.
    QStringList unknownOptions;
    QStringList files;
};

/// Reads `arguments`, the program's name first. Everything after "--" is a file.
StartArguments readStartArguments(const QStringList &arguments);

/// The usage text, in the user's language. Needs a QCoreApplication.
QString startHelp();

/// Absolute path of the file that `argument` names, relative to `folder`: a path, or a "file:" URL
/// of this machine. Links on the way are not resolved, and a ".." behind a folder's name is kept:
/// it may lead elsewhere when that folder is a link. "" for a URL that names no file.
QString startFile(const QString &argument, const QString &folder);
