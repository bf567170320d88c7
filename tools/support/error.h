#pragma once

#include "toolresult.h"

#include <optional>
#include <stdexcept>
#include <string>

/// Ends a call of one of the two programs without a result.
class ToolError : public std::runtime_error
{
public:
    /// `sentence` is shown behind the program's name; `status` is the exit status.
    explicit ToolError(const std::string &sentence, int status = 1);
    /// The failure of a real tool, whose messages are shown as they are.
    explicit ToolError(ToolResult result);

    /// What the call of `program` ends with.
    ToolResult result(const std::string &program) const;

private:
    int m_status;
    std::optional<ToolResult> m_result;
};

/// For arguments that are no call of a tool: `usage` is shown, and the exit status is 2.
ToolError usageError(const std::string &usage);

/// "<what> <path>: <text of errno>", for a system call that has just failed.
ToolError systemError(const std::string &what, const std::string &path);
