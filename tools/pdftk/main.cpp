#include "bundle.h"
#include "environment.h"
#include "error.h"
#include "job.h"
#include "losslessinfo.h"
#include "pdftkcall.h"
#include "text.h"
#include "toolmain.h"

#include <chrono>

#include <sys/stat.h>

namespace {

ChildSpec realTool()
{
    ChildSpec spec;
    spec.command = realCommand("pdftk");
    // The JVM decodes file names and its standard input by the locale.
    spec.environment = environmentWith({"LC_ALL=C.UTF-8"});
    return spec;
}

unsigned long long sizeOf(const std::string &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? static_cast<unsigned long long>(status.st_size) : 0;
}

// Many times what pdftk-java 3.3.2 takes: 3 s for 63 MiB on two busy cores.
std::chrono::seconds timeFor(const std::string &pdf)
{
    constexpr std::chrono::seconds timeAtLeast{60};
    constexpr unsigned long long mebibyte = 1024ULL * 1024;
    return timeAtLeast + std::chrono::seconds(2 * sizeOf(pdf) / mebibyte);
}

std::string contentOfInfo(const std::string &path)
{
    constexpr unsigned long long mostText = 16ULL * 1024 * 1024;
    requireRegularFile(path);
    std::string content;
    if (sizeOf(path) > mostText || !readFile(path, content))
        throw ToolError("cannot read '" + path + "': too large for a description");
    return content;
}

// The word for the command line that names the description, in a form that arrives whole.
std::string infoWord(Job &job, const PdftkCall &call, const std::string &charset)
{
    const std::string content = losslessInfo(contentOfInfo(call.infoFile), charset);
    return content.empty() ? job.addInput(call.infoFile, "info-1") : job.addFile("info-1", content);
}

Outcome finish(const PdftkCall &call, const std::string &charset)
{
    requireRegularFile(call.input);
    Job job(call.output);
    ChildSpec spec = realTool();
    spec.prompts = call.passwords;
    spec.deadline = timeFor(call.input);
    std::vector<std::string> &words = spec.command;
    words.push_back(job.addInput(call.input, "input-1"));
    if (!call.infoFile.empty())
        words.insert(words.end(), {"update_info", infoWord(job, call, charset)});
    words.insert(words.end(), {"output", Job::resultName});
    words.insert(words.end(), call.tail.begin(), call.tail.end());
    return job.run(std::move(spec));
}

Outcome run(const Arguments &arguments)
{
    const std::string charset = localeCharset();
    if (const std::optional<PdftkCall> call = parsePdftkCall(arguments, charset))
        return finish(*call, charset);
    ChildSpec spec = realTool();
    spec.command.insert(spec.command.end(), arguments.begin(), arguments.end());
    return handOver(std::move(spec));
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram({"pdftk", run, maskedPdftkArguments}, argc, argv);
}
