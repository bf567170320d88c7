#include "bundle.h"
#include "environment.h"
#include "job.h"
#include "losslessinfo.h"
#include "pdftkcall.h"
#include "program.h"
#include "text.h"

#include <cstring>

namespace {

ChildSpec realTool()
{
    ChildSpec spec;
    spec.command = realCommand("pdftk");
    // The JVM decodes file names and its standard input by the locale.
    spec.environment = environmentWith({"LC_ALL=C.UTF-8"});
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
    requireRegularFile(call.input);
    if (!call.infoFile.empty())
        requireRegularFile(call.infoFile);
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
    return runProgram({"pdftk", run, maskedPdftkArguments}, argc, argv);
}
