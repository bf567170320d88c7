#pragma once

#include <filesystem>

/// The absolute path that an environment variable holds; "" if it holds none.
std::filesystem::path absolutePathIn(const char *variable);

/// Writes `file`, the settings of a user who has none yet, unless it exists: the open dialog begins
/// in the user's folder of pictures and the folder dialog in that of documents, by xdg-user-dirs;
/// in the home folder where there is no such folder. Failures are ignored: settings are a comfort.
void writeFirstSettings(const std::filesystem::path &file);
