#pragma once

#include "toolresult.h"

#include <chrono>
#include <string>
#include <vector>

struct CallRecord
{
    std::string program;
    /// As they came, with every secret masked.
    std::vector<std::string> arguments;
    ToolResult result;
    std::chrono::milliseconds duration{0};
};

/// Whether the environment's TESSARO_TOOL_LOG names a file to log to.
bool isLogging();

/// Appends `record` to that file, which is made readable by its owner alone. A log that cannot be
/// written changes nothing about the call.
void appendToLog(const CallRecord &record);
