#pragma once

#include <filesystem>

/// The absolute path that an environment variable holds; "" if it holds none.
std::filesystem::path absolutePathIn(const char *variable);

/// Writes `file`, the first settings of a user, unless it exists: the open dialog starts in the
/// user's folder for pictures and the folder dialog in that for documents (xdg-user-dirs), or in
/// the home folder if there is none. Failures are ignored, as the program runs without settings.
void writeFirstSettings(const std::filesystem::path &file);
