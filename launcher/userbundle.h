#pragma once

#include <filesystem>

/// The bundle that a user's program runs from: settings and descriptions lie in the folder that
/// holds the bundle, which the place of the executable decides, so every running window has a
/// bundle of its own.

/// The folder for the user's data, by the variables XDG_DATA_HOME and HOME. Throws
/// std::filesystem::filesystem_error when neither is an absolute path.
std::filesystem::path dataFolder();

/// Sets up a bundle (the folder Tessaro.app) that does what `shared` does, in the first of the
/// folders `own`, `own`/window-2, `own`/window-3, ... that no running program uses, and returns it:
/// the executable is a copy, all else are links, and the settings are those in `own`. It is in use
/// until this process ends, also when that becomes another program (execve(2)).
///
/// What is right already stays untouched; folders that are missing are made for the user alone.
/// Throws std::filesystem::filesystem_error, and leaves no new bundle that is incomplete.
std::filesystem::path takeBundle(const std::filesystem::path &shared,
                                 const std::filesystem::path &own);
