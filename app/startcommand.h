#pragma once

#include <QStringList>

#include <memory>
#include <optional>

class QApplication;

/// Exit status of a program that could not be started.
inline constexpr int notStarted = 1;

/// Exit status for a command line that is not understood.
inline constexpr int wrongUsage = 2;

/// Prints the help or the version if the command line asks for it; returns whether it did. Needs no
/// display. Call it before there is an application object.
bool printHelpOrVersion(int argc, char **argv);

/// Reports why the launcher (launcher/main.cpp) could not set up this user's program, which it
/// passes in the environment; returns false if there was no failure. Prints a line on standard
/// error, and shows a message box if that is no terminal and there is a display.
bool reportStartFailure(int argc, char **argv);

/// The application object, prepared for the window (startup.h). Without a display the program
/// ends with the status `notStarted` and a line on standard error. `argc` has to outlive the
/// object.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

/// The files to list, as absolute paths, from `arguments` as QApplication left them; names are
/// relative to `folder`. A missing file is left out, with a line on standard error. Nothing if
/// there is an unknown option, also with a line on standard error.
std::optional<QStringList> startFiles(const QStringList &arguments, const QString &folder);
