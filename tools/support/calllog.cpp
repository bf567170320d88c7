#include "calllog.h"

#include "filedescriptor.h"
#include "sandboxsupport.h"
#include "text.h"

#include <array>
#include <cstdlib>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

namespace {

const char *logPath()
{
    const char *path = getenv("TESSARO_TOOL_LOG");
    return path && *path ? path : nullptr;
}

std::string now()
{
    const time_t seconds = time(nullptr);
    tm parts = {};
    std::array<char, 32> text{};
    gmtime_r(&seconds, &parts);
    strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text.data();
}

std::string listed(const std::string &title, const std::vector<std::string> &lines)
{
    std::string result;
    for (const std::string &line : lines)
        result.append("  ").append(title).append(": ").append(line).append("\n");
    return result;
}

} // namespace

bool isLogging()
{
    return logPath() != nullptr;
}

void appendToLog(const CallRecord &record)
{
    const std::string entry =
        now() + " " + record.program + " exit status " + std::to_string(record.result.status) +
        " after " + std::to_string(record.duration.count()) + " ms\n" +
        (isSandboxComplete() ? "" : "  sandbox: " + describeSandbox() + "\n") +
        listed("argument", record.arguments) + listed("message", linesOf(record.result.output)) +
        listed("message", linesOf(record.result.errors));
    const FileDescriptor file(
        open(logPath(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0600));
    // One write, so that calls at work at the same time do not mix their lines.
    if (file.valid()) [[maybe_unused]]
        const ssize_t written = write(file.get(), entry.data(), entry.size());
}
