#include "environment.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <unistd.h>

namespace {

// Beginnings of "NAME=value". A user's JVM options could clash with ours, which ends a JVM; a
// user's ImageMagick folders could bring modules and delegates of their own.
constexpr std::array<std::string_view, 12> removed = {
    "LANG=",          "LANGUAGE=",         "LC_",         "HOME=",
    "XDG_CONFIG_",    "MAGICK_",           "MAGICKCORE_", "OMP_",
    "_JAVA_OPTIONS=", "JDK_JAVA_OPTIONS=", "CLASSPATH=",  "JAVA_TOOL_OPTIONS=",
};

bool isRemoved(std::string_view variable)
{
    return std::any_of(removed.begin(), removed.end(), [variable](std::string_view beginning) {
        return variable.starts_with(beginning);
    });
}

} // namespace

std::vector<std::string> environmentWith(const std::vector<std::string> &additions)
{
    std::vector<std::string> result;
    for (char **variable = environ; *variable; ++variable) {
        if (!isRemoved(*variable))
            result.emplace_back(*variable);
    }
    result.insert(result.end(), additions.begin(), additions.end());
    return result;
}
