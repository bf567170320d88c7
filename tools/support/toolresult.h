#pragma once

#include <string>

/// How a call of one of the two programs ended: its exit status, and the messages to be shown
/// when that is not 0.
struct ToolResult
{
    int status = 0;
    std::string output;
    std::string errors;
};
