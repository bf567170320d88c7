#include "environment.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include <unistd.h>

namespace {

constexpr auto passedOn = std::to_array<std::string_view>({"LD_LIBRARY_PATH=", "TMPDIR=", "TZ="});

bool isPassedOn(std::string_view variable)
{
    return std::any_of(passedOn.begin(), passedOn.end(), [variable](std::string_view beginning) {
        return variable.starts_with(beginning);
    });
}

} // namespace

std::vector<std::string> environmentWith(const std::vector<std::string> &additions)
{
    std::vector<std::string> result;
    for (char **variable = environ; *variable; ++variable) {
        if (isPassedOn(*variable))
            result.emplace_back(*variable);
    }
    result.insert(result.end(), additions.begin(), additions.end());
    return result;
}

void wipeEnvironment()
{
    for (char **variable = environ; *variable; ++variable) {
        if (!isPassedOn(*variable))
            explicit_bzero(*variable, strlen(*variable));
    }
}
