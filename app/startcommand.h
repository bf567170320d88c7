#pragma once

#include <QStringList>

#include <optional>

/// Exit status for a command line that is not understood.
inline constexpr int wrongUsage = 2;

/// Prints the help or the version if the command line asks for it, and says whether it did. Needs
/// no display; to be called before there is an application object.
bool answerQuestion(int argc, char **argv);

/// The files to list, absolute, from `arguments` as QApplication left them; names are seen from
/// `folder`. Each that does not exist is left out with a line on standard error. Nothing when there
/// is an unknown option, with a line on standard error too.
std::optional<QStringList> startFiles(const QStringList &arguments, const QString &folder);
