#pragma once

#include <stdexcept>
#include <string>

/// Ends a call of one of the two programs: what() is the one sentence shown, the status is 1.
class ToolError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// "<what> <path>: <text of errno>", for a system call that has just failed.
ToolError systemError(const std::string &what, const std::string &path);
