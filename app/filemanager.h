#pragma once

#include <QString>

/// Shows the file at `path` in the desktop's file manager, selected in its folder; opens the folder
/// if the file manager cannot do that. Returns at once and reports no failure.
void showInFolder(const QString &path);
