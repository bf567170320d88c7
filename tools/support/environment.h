#pragma once

#include <string>
#include <vector>

/// This process's environment as "NAME=value", without the variables that would change what the
/// real tools do (locale, home and configuration folders, ImageMagick's and the JVM's own), and
/// with `additions` after it.
std::vector<std::string> environmentWith(const std::vector<std::string> &additions);
