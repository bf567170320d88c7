#include "bundle.h"
#include "environment.h"
#include "job.h"
#include "losslessinfo.h"
#include "pdftkcall.h"
#include "program.h"
#include "text.h"

#include <cstring>

namespace {

// Arguments are readable by every user of the machine for as long as the process lives, so they
// are gone as soon as they are read.
Arguments takeArguments(int argc, char **argv)
{
    Arguments arguments(argv + 1, argv + argc);
    const Arguments masked = maskedPdftkArguments(arguments);
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (masked[i] != arguments[i])
            memset(argv[i + 1], '*', arguments[i].size());
    }
    return arguments;
}

ChildSpec realTool()
{
    ChildSpec spec;
    spec.command = realCommand("pdftk");
    // The JVM decodes file names and its standard input by the locale.
    spec.environment = environmentWith({"LC_ALL=C.UTF-8"});
    // A dump of its memory would hold the passwords.
    spec.limits = {{RLIMIT_CORE, 0}};
    return spec;
}

// The word for the command line that names the description, in a form that arrives whole.
std::string infoWord(Job &job, const PdftkCall &call, const std::string &charset)
{
    std::string content;
    if (readFile(call.infoFile, content))
        content = losslessInfo(content, charset);
    return content.empty() ? job.addInput(call.infoFile, "info-1") : job.addFile("info-1", content);
}

Outcome finish(const PdftkCall &call, const std::string &charset)
{
    Job job(call.output);
    ChildSpec spec = realTool();
    spec.prompts = call.passwords;
    std::vector<std::string> &words = spec.command;
    words.push_back(job.addInput(call.input, "input-1"));
    if (!call.infoFile.empty())
        words.insert(words.end(), {"update_info", infoWord(job, call, charset)});
    words.insert(words.end(), {"output", "./" + job.resultName()});
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
    const Arguments arguments = takeArguments(argc, argv);
    holdSignals();
    return runProgram({"pdftk", run, maskedPdftkArguments}, arguments);
}
