#pragma once

#include "subprocess.h"

#include <functional>
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

/// Does `work`, which reads files of strangers, called `inputs` in messages, for the tool called
/// `name`, in a copy of this process with the sandbox, limits and deadline of `bounds`. Returns
/// what `work` returns, or throws ToolError with what it threw. Signals are passed on, and end the
/// copy unless it holds them.
std::string runConfined(const std::string &name, const std::string &inputs, SubprocessSpec bounds,
                        const std::function<std::string()> &work);
