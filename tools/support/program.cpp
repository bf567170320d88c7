#include "program.h"

#include "calllog.h"
#include "diagnosis.h"
#include "text.h"

#include <chrono>
#include <utility>

#include <unistd.h>

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

// The real tool may repeat a word that it refuses, and that may be a part of a password.
void maskMessages(Outcome &outcome, const Arguments &arguments, const Arguments &masked)
{
    constexpr size_t shortestSecret = 3;
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (masked[i] == arguments[i] || arguments[i].size() < shortestSecret)
            continue;
        replaceAll(outcome.output, arguments[i], masked[i]);
        replaceAll(outcome.errors, arguments[i], masked[i]);
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
        const Arguments masked = program.masked(arguments);
        maskMessages(outcome, arguments, masked);
        appendToLog({program.name, masked, outcome,
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
