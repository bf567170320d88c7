#include "error.h"

#include <cerrno>
#include <cstring>

ToolError systemError(const std::string &what, const std::string &path)
{
    const int error = errno;
    return ToolError(what + " '" + path + "': " + strerror(error));
}
