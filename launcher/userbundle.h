#pragma once

#include <filesystem>

/// The bundle that a user's program runs from. Settings and descriptions are in the folder that
/// holds the bundle, found by the executable's place, so every running window has its own bundle.

/// The folder for the user's data, from XDG_DATA_HOME or HOME. Throws
/// std::filesystem::filesystem_error when neither is an absolute path.
std::filesystem::path dataFolder();

/// Sets up a bundle (the folder Tessaro.app) that does what `shared` does, in the first of the
/// folders `own`, `own`/window-2, `own`/window-3, ... that no running program uses, and returns it:
/// the executable is a copy, the rest are links, and the settings are those in `own`. It is in use
/// until this process ends, even if it executes another program (execve(2)).
///
/// Correct files stay untouched; missing folders are created with mode 0700. Throws
/// std::filesystem::filesystem_error, and then leaves no new incomplete bundle.
std::filesystem::path takeBundle(const std::filesystem::path &shared,
                                 const std::filesystem::path &own);
