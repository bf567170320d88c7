#include "toolmain.h"

#include "calllog.h"
#include "error.h"
#include "filedescriptor.h"
#include "hardening.h"
#include "text.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <exception>
#include <new>
#include <utility>

#include <unistd.h>

namespace {

// Arguments are readable by every user of the machine for as long as the process lives, so they
// are gone as soon as they are read.
void wipe(char **words, const Arguments &arguments, const Arguments &masked)
{
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (masked[i] != arguments[i])
            memset(words[i], '*', arguments[i].size());
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

Outcome outcomeOf(const Program &program, const Arguments &arguments)
{
    try {
        return program.run(arguments);
    } catch (const std::bad_alloc &) {
        return {1, "", program.name + ": not enough memory\n"};
    } catch (const std::exception &error) {
        return {1, "", program.name + ": " + error.what() + "\n"};
    }
}

int runGuarded(const Program &program, int argc, char **argv)
{
    const auto start = std::chrono::steady_clock::now();
    const Arguments arguments(argv + std::min(argc, 1), argv + argc);
    const Arguments masked = program.masked(arguments);
    wipe(argv + 1, arguments, masked);
    prepareProcess();
    Outcome outcome = outcomeOf(program, arguments);
    if (outcome.status != 0) {
        writeAll(STDOUT_FILENO, outcome.output);
        writeAll(STDERR_FILENO, outcome.errors);
    }
    if (isLogging()) {
        const auto taken = std::chrono::steady_clock::now() - start;
        maskMessages(outcome, arguments, masked);
        appendToLog({program.name, masked, outcome,
                     std::chrono::duration_cast<std::chrono::milliseconds>(taken)});
    }
    return outcome.status;
}

} // namespace

int runProgram(const Program &program, int argc, char **argv)
{
    forbidCoreDumps();
    try {
        return runGuarded(program, argc, argv);
    } catch (const std::exception &error) {
        for (const char *part : {program.name.c_str(), ": ", error.what(), "\n"})
            writeAll(STDERR_FILENO, part);
    }
    return 1;
}

Outcome handOver(ChildSpec spec)
{
    spec.capture = isLogging() ? Capture::Errors : Capture::Nothing;
    spec.mask = userMask();
    ChildResult result = runChild(spec);
    if (result.succeeded())
        writeAll(STDERR_FILENO, result.errors);
    return {result.exitStatus(), "", std::move(result.errors)};
}
