#pragma once

#include <QStringList>

#include <memory>
#include <optional>

class QApplication;

/// Exit status of a program that could not be started.
inline constexpr int notStarted = 1;

/// Exit status for a command line that is not understood.
inline constexpr int wrongUsage = 2;

/// Prints the help or the version if the command line asks for it, and says whether it did. Needs
/// no display; to be called before there is an application object.
bool printHelpOrVersion(int argc, char **argv);

/// Whether the command that an installation starts says, in the environment, why this user's
/// program cannot be set up (launcher/main.cpp). If so, that is reported: a line on standard error,
/// and a message box where standard error is no terminal and there is a display.
bool reportStartFailure(int argc, char **argv);

/// The application object, prepared for the window (startup.h). Without a display the program
/// ends with the status `notStarted` and a line on standard error. `argc` has to outlive the
/// object.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

/// The files to list, absolute, from `arguments` as QApplication left them; names are seen from
/// `folder`. Each that does not exist is left out with a line on standard error. Nothing when there
/// is an unknown option, with a line on standard error too.
std::optional<QStringList> startFiles(const QStringList &arguments, const QString &folder);
