// Stands in for `convert` and `pdftk` in tests of the window: distinguished by the name it is
// started under, it records how it was called and then behaves, or misbehaves, as the environment
// says.
//
// TESSARO_FAKE_LOG      file that gets a line for each call: name, pid and arguments, tab-separated
// TESSARO_FAKE_CONVERT  blank-separated words for calls as `convert`, TESSARO_FAKE_PDFTK as
// `pdftk`:
//   gate=PATH           wait while PATH exists
//   delay=MS            wait that many milliseconds
//   hang                never end
//   noise=BYTES         print that many bytes to each of the two output streams
//   output=none|partial write nothing, or "partial" for the result (default: all of it)
//   full                report a full disk and leave a partial result, exit 1
//   exit=N              exit status
//   signal=N            end by that signal
//   outlive             go on when the program that started it ends
// Without words the result is written and the exit status is 0. A missing input fails as the real
// tools do: no result, exit status 1; so does a place that its owner may not write to, root's too.

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using Arguments = std::vector<std::string>;

std::string environment(const std::string &name)
{
    const char *value = std::getenv(name.c_str());
    return value ? value : "";
}

/// What the environment asks of a call.
struct Behaviour
{
    std::string gate;
    long delay = 0;
    long noise = 0;
    long signal = 0;
    int exitStatus = 0;
    bool hang = false;
    bool full = false;
    bool outlive = false;
    std::string output = "all";
};

Behaviour readBehaviour(const std::string &words)
{
    Behaviour behaviour;
    std::istringstream stream(words);
    for (std::string word; stream >> word;) {
        const auto equals = word.find('=');
        const std::string key = word.substr(0, equals);
        const std::string value = equals == std::string::npos ? "" : word.substr(equals + 1);
        if (key == "gate")
            behaviour.gate = value;
        else if (key == "delay")
            behaviour.delay = std::stol(value);
        else if (key == "noise")
            behaviour.noise = std::stol(value);
        else if (key == "signal")
            behaviour.signal = std::stol(value);
        else if (key == "exit")
            behaviour.exitStatus = std::stoi(value);
        else if (key == "output")
            behaviour.output = value;
        else if (key == "hang")
            behaviour.hang = true;
        else if (key == "full")
            behaviour.full = true;
        else if (key == "outlive")
            behaviour.outlive = true;
    }
    return behaviour;
}

void record(const std::string &name, const Arguments &arguments)
{
    const std::string log = environment("TESSARO_FAKE_LOG");
    if (log.empty())
        return;
    std::string line = name + '\t' + std::to_string(getpid());
    for (const std::string &argument : arguments)
        line += '\t' + argument;
    std::ofstream(log, std::ios::app) << line + '\n' << std::flush;
}

std::optional<std::string> contentOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool isFile(const std::string &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

struct Result
{
    std::string path;
    std::string content;
};

std::size_t skipOptions(const Arguments &arguments)
{
    std::size_t first = 0;
    while (first < arguments.size() && arguments[first].starts_with("-"))
        first += arguments[first] == "-monochrome" ? 1 : 2;
    return first;
}

/// The "PDF" of the images: "convert(IN|IN...)".
std::optional<Result> convertResult(const Arguments &arguments)
{
    const std::size_t first = skipOptions(arguments);
    if (first + 2 > arguments.size())
        return std::nullopt;
    std::string content;
    for (std::size_t i = first; i + 1 < arguments.size(); ++i) {
        if (!isFile(arguments[i]))
            return std::nullopt;
        content += (content.empty() ? "" : "|") + arguments[i];
    }
    return Result{arguments.back(), "convert(" + content + ")"};
}

/// The second pass over a "PDF": "pdftk(CONTENT)".
std::optional<Result> pdftkResult(const Arguments &arguments)
{
    if (arguments.empty())
        return std::nullopt;
    const auto input = contentOf(arguments.front());
    for (std::size_t i = 1; input && i + 1 < arguments.size(); ++i) {
        if (arguments[i] == "output")
            return Result{arguments[i + 1], "pdftk(" + *input + ")"};
    }
    return std::nullopt;
}

void makeNoise(long bytes)
{
    const std::string block(1 << 16, 'x');
    for (long left = bytes; left > 0; left -= static_cast<long>(block.size())) {
        std::cout.write(block.data(), static_cast<std::streamsize>(block.size()));
        std::cerr.write(block.data(), static_cast<std::streamsize>(block.size()));
    }
    std::cout.flush();
}

void waitAsTold(const Behaviour &behaviour)
{
    using namespace std::chrono_literals;
    while (!behaviour.gate.empty() && isFile(behaviour.gate))
        std::this_thread::sleep_for(1ms);
    std::this_thread::sleep_for(std::chrono::milliseconds(behaviour.delay));
    while (behaviour.hang)
        pause();
}

bool write(const std::string &path, const std::string &content)
{
    std::ofstream file(path, std::ios::binary);
    file << content << std::flush;
    return file.good();
}

/// Gives up root's right to write anywhere.
void obeyPermissions()
{
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3] = {};
    syscall(SYS_capset, &header, none);
}

} // namespace

int main(int argc, char *argv[])
{
    std::string name = argv[0];
    name = name.substr(name.rfind('/') + 1);
    const Arguments arguments(argv + 1, argv + argc);
    const bool asConvert = name == "convert";
    const Behaviour behaviour =
        readBehaviour(environment(asConvert ? "TESSARO_FAKE_CONVERT" : "TESSARO_FAKE_PDFTK"));

    if (!behaviour.outlive)
        prctl(PR_SET_PDEATHSIG, SIGKILL); // a hanging call ends with its test at the latest
    record(name, arguments);
    obeyPermissions();
    waitAsTold(behaviour);
    makeNoise(behaviour.noise);
    const auto result = asConvert ? convertResult(arguments) : pdftkResult(arguments);
    if (!result)
        return 1;
    const bool partial = behaviour.full || behaviour.output == "partial";
    if (behaviour.output != "none" && !write(result->path, partial ? "partial" : result->content))
        return 1;
    if (behaviour.signal != 0)
        raise(static_cast<int>(behaviour.signal));
    if (behaviour.full) {
        std::cerr << "No space left on device\n";
        return 1;
    }
    return behaviour.exitStatus;
}
