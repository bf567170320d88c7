#pragma once

#include <string>
#include <vector>

/// The environment of a real tool, as "NAME=value": those variables of this process that say where
/// temporary files and libraries are and which time zone it is in, and `additions`. Nothing else
/// is passed on: tokens, agents, the session bus, or what would change what a tool does.
std::vector<std::string> environmentWith(const std::vector<std::string> &additions);

/// Overwrites every other variable in the memory of this process.
void wipeEnvironment();
