#pragma once

#include <map>
#include <string>
#include <vector>

/// What hostile code knows of the machine that it tries to reach: "NAME=value" by name.
using Knowledge = std::map<std::string, std::string>;

Knowledge knowledgeFrom(const std::vector<std::string> &lines);

/// Everything that hostile code tries from inside a process that it has taken over, in turn, or
/// only what begins with the value of "only"; one line "NAME: succeeded" or "NAME: refused
/// (reason)" for each on standard error.
void tryEverything(const Knowledge &knowledge);
