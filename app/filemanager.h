#pragma once

#include <QString>

/// Has the desktop's file manager show the file at `path`, selected in its folder; without a file
/// manager that can, the folder is opened. Returns at once, and a failure is not reported.
void showInFolder(const QString &path);
