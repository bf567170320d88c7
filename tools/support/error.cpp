#include "error.h"

#include <cerrno>
#include <cstring>
#include <utility>

ToolError::ToolError(const std::string &sentence, int status)
    : std::runtime_error(sentence)
    , m_status(status)
{
}

ToolError::ToolError(ToolResult result)
    : std::runtime_error(result.errors)
    , m_status(result.status)
    , m_result(std::move(result))
{
}

ToolResult ToolError::result(const std::string &program) const
{
    return m_result.value_or(ToolResult{m_status, "", program + ": " + what() + "\n"});
}

ToolError usageError(const std::string &usage)
{
    return ToolError({2, "", usage + "\n"});
}

ToolError systemError(const std::string &what, const std::string &path)
{
    const int error = errno;
    return ToolError(what + " '" + path + "': " + strerror(error));
}
