#include "support/program.h"

#include <chrono>
#include <utility>

#include <unistd.h>

#include "support/calllog.h"
#include "support/diagnosis.h"

namespace {

void show(int stream, const std::string &text)
{
    for (size_t done = 0; done < text.size();) {
        const ssize_t count = write(stream, text.data() + done, text.size() - done);
        if (count <= 0)
            return;
        done += static_cast<size_t>(count);
    }
}

} // namespace

int runProgram(const Program &program, const Arguments &arguments)
{
    const auto start = std::chrono::steady_clock::now();
    Outcome outcome;
    try {
        outcome = program.run(arguments);
    } catch (const ToolError &error) {
        outcome = {1, "", program.name + ": " + error.what() + "\n"};
    }
    if (outcome.status != 0) {
        show(STDOUT_FILENO, outcome.output);
        show(STDERR_FILENO, outcome.errors);
    }
    if (isLogging()) {
        const auto taken = std::chrono::steady_clock::now() - start;
        appendToLog({program.name, program.masked(arguments), outcome,
                     std::chrono::duration_cast<std::chrono::milliseconds>(taken)});
    }
    return outcome.status;
}

Outcome handOver(ChildSpec spec)
{
    spec.capture = isLogging() ? Capture::Errors : Capture::Nothing;
    ChildResult result = runChild(spec);
    if (result.succeeded())
        show(STDERR_FILENO, result.errors);
    return {result.exitStatus(), "", std::move(result.errors)};
}
