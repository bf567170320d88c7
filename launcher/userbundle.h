#pragma once

#include <filesystem>

/// The bundle that a user's program runs from: settings and descriptions lie in the folder that
/// holds the bundle, which the place of the executable decides, so every user has one of their own.

/// The folder for the user's data, by the variables XDG_DATA_HOME and HOME. Throws
/// std::runtime_error with a sentence when neither leads to an absolute path.
std::filesystem::path dataFolder();

/// Makes `own` a bundle (the folder Tessaro.app) that does what `shared` does: the executable is a
/// copy, all else are links. What is right already stays untouched; what is not is replaced in one
/// step, so that any number of calls at once, and running programs, do no harm to each other.
/// Folders that are missing are made for the user alone. Throws std::filesystem::filesystem_error.
void readyBundle(const std::filesystem::path &shared, const std::filesystem::path &own);
