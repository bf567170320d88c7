#include "toolmain.h"

#include "calllog.h"
#include "environment.h"
#include "error.h"
#include "filedescriptor.h"
#include "hardening.h"
#include "subprocesspool.h"
#include "text.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// Every user of the machine can read the arguments for as long as the process lives.
void wipe(char **words, const Arguments &arguments, const Arguments &masked)
{
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (masked[i] != arguments[i])
            memset(words[i], '*', arguments[i].size());
    }
}

// The real tool may repeat a word that it refuses, and that may be a part of a password.
void maskMessages(ToolResult &result, const Arguments &arguments, const Arguments &masked)
{
    constexpr size_t minSecret = 3;
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (masked[i] == arguments[i] || arguments[i].size() < minSecret)
            continue;
        replaceAll(result.output, arguments[i], masked[i]);
        replaceAll(result.errors, arguments[i], masked[i]);
    }
}

bool printHelpOrVersion(const Tool &tool, const Arguments &arguments)
{
    if (arguments == Arguments{"--help"})
        writeAll(STDOUT_FILENO, tool.usage + "\n");
    else if (arguments == Arguments{"--version"})
        writeAll(STDOUT_FILENO, tool.name + " of " TESSARO_NAME "\n");
    else
        return false;
    return true;
}

ToolResult resultOf(const std::string &name, const std::function<std::string()> &work)
{
    try {
        return {0, "", work()};
    } catch (const ToolError &error) {
        return error.result(name);
    } catch (const std::bad_alloc &) {
        return {1, "", name + ": not enough memory\n"};
    } catch (const std::exception &error) {
        return {1, "", name + ": " + error.what() + "\n"};
    }
}

[[noreturn]] void endEarly()
{
    writeAll(STDERR_FILENO, program_invocation_short_name);
    writeAll(STDERR_FILENO, ": cannot go on, for lack of memory perhaps\n");
    _exit(EXIT_FAILURE);
}

// The first of all code, as libqpdf 11.3 allocates before main() begins. It also throws from
// destructors.
void replaceTermination()
{
    std::set_terminate(endEarly);
}

[[gnu::section(".preinit_array"), gnu::used]] void (*const first)() = replaceTermination;

int runGuarded(const Tool &tool, int argc, char **argv)
{
    const auto start = std::chrono::steady_clock::now();
    const Arguments arguments(argv + std::min(argc, 1), argv + argc);
    const Arguments masked = tool.masked(arguments);
    wipe(argv + 1, arguments, masked);
    prepareProcess();
    if (printHelpOrVersion(tool, arguments))
        return 0;
    ToolResult result = resultOf(tool.name, [&] { return tool.run(arguments); });
    if (result.status != 0) {
        writeAll(STDOUT_FILENO, result.output);
        writeAll(STDERR_FILENO, result.errors);
    }
    if (isLogging()) {
        const auto taken = std::chrono::steady_clock::now() - start;
        maskMessages(result, arguments, masked);
        appendToLog({tool.name, masked, result,
                     std::chrono::duration_cast<std::chrono::milliseconds>(taken)});
    }
    return result.status;
}

} // namespace

int runTool(const Tool &tool, int argc, char **argv)
{
    forbidCoreDumps();
    try {
        return runGuarded(tool, argc, argv);
    } catch (const std::exception &error) {
        for (const char *part : {tool.name.c_str(), ": ", error.what(), "\n"})
            writeAll(STDERR_FILENO, part);
    }
    return 1;
}

std::string runConfined(const std::string &name, const std::string &inputs, SubprocessSpec bounds,
                        const std::function<std::string()> &work)
{
    bounds.task = [&name, &work] {
        wipeEnvironment();
        const ToolResult result = resultOf(name, work);
        writeAll(STDOUT_FILENO, result.output);
        writeAll(STDERR_FILENO, result.errors);
        return result.status;
    };
    // Kept for `work`: inside there is no environment that names a locale.
    localeCharset();
    SubprocessPool pool;
    pool.start(std::move(bounds), 0);
    const SubprocessResult result = pool.wait().result;
    // Nested deeply enough, a file overflows the stack of the library that reads it.
    if (WIFSIGNALED(result.waitStatus) && !result.timedOut && pool.askedToEnd() == 0)
        throw ToolError("cannot read " + inputs + ": ended by signal " +
                        std::to_string(WTERMSIG(result.waitStatus)) +
                        ", by damage or too deep nesting perhaps");
    if (!result.succeeded())
        throw ToolError({result.exitStatus(), result.output, result.explainedErrors()});
    pool.requireNoSignal();
    return result.errors;
}
