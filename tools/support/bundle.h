#pragma once

#include <string>
#include <vector>

/// The bundle's Resources folder, found from the real place of the running program: a symbolic
/// link to it, or a moved or copied bundle, finds the folder that belongs to the program.
std::string resourcesFolder();

/// Where the image policy lies, as limits/policy.xml and rights/ImageMagick/policy.xml.
std::string policyFolder();

/// Throws ToolError when a part of the policy is missing or ImageMagick could not find it: without
/// it everything would be allowed.
void requirePolicy();

/// The words that start the real tool `name`, one per line of Resources/<name>.tool, which
/// packaging/assemble-tools writes. Throws ToolError when the file is missing or empty.
std::vector<std::string> realCommand(const std::string &name);
