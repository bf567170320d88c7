#pragma once

#include <QString>

/// The folder that holds the application bundle, from the executable's folder: cut before the
/// last ".", then before the last "/". A text without the character is not cut,
/// so /opt/app/bin gives /opt/app. The settings and the info file live there.
QString bundleFolder(const QString &executableFolder);

/// The bundle's plug-in folder: "Plugins" beside the executable's folder.
QString pluginFolder(const QString &executableFolder);
