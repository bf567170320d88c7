#pragma once

#include <string>
#include <vector>

using Arguments = std::vector<std::string>;

/// One of the two programs beside the executable.
struct Tool
{
    std::string name;
    /// The sentence shown for --help and for arguments that are not the application's.
    std::string usage;
    /// Runs a call and returns what a log may say of its success. Throws ToolError.
    std::string (*run)(const Arguments &);
    /// The arguments as they may be logged.
    Arguments (*masked)(const Arguments &);
};

/// All of main(): runs one call and returns the exit status. Quiet on success, except for --help
/// and --version; on failure the messages are shown. Both are logged on request. Arguments that
/// `tool` masks are wiped from `argv` before anything else.
int runTool(const Tool &tool, int argc, char **argv);
