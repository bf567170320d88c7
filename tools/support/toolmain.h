#pragma once

#include "subprocess.h"
#include "toolresult.h"

#include <string>
#include <vector>

using Arguments = std::vector<std::string>;

/// One of the two programs beside the executable.
struct Program
{
    /// Its own name, and that of the real tool's command in the bundle.
    std::string name;
    /// What a call does. May throw ToolError.
    Outcome (*run)(const Arguments &);
    /// The arguments as they may be logged.
    Arguments (*masked)(const Arguments &);
};

/// All of main(): runs one call and returns the exit status. Quiet on success, the messages shown
/// on failure, one sentence for whatever cannot be done, and the whole of it logged when that is
/// wished. Arguments that `program` masks are wiped from `argv` first of all.
int runProgram(const Program &program, int argc, char **argv);

/// Hands a call that is not of the application's shape to the real tool: `spec`, with the standard
/// streams passed through; only the errors take the way round by us, and only for the log.
Outcome handOver(ChildSpec spec);
