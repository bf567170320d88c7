#include "bundle.h"
#include "environment.h"
#include "error.h"
#include "inputlinks.h"
#include "losslessinfo.h"
#include "outputtransaction.h"
#include "pdftkcall.h"
#include "text.h"
#include "toolmain.h"

#include <chrono>

#include <sys/stat.h>

namespace {

constexpr const char *usage =
    "usage: pdftk INPUT.pdf [update_info FILE] output OUTPUT.pdf [owner_pw PASSWORD] "
    "[user_pw PASSWORD] [allow PERMISSION]...";

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
    constexpr unsigned long long maxText = 16ULL * 1024 * 1024;
    requireRegularFile(path);
    if (sizeOf(path) > maxText)
        throw ToolError("cannot read '" + path + "': too large for a description");
    if (std::optional<std::string> content = readFile(path))
        return std::move(*content);
    throw systemError("cannot read", path);
}

// The description as a file in `folder`, in a form that arrives whole.
void writeInfo(const WorkDirectory &folder, const std::string &content)
{
    if (!writeAll(folder.addFile("info-1").get(), content))
        throw systemError("cannot write", folder.path() + "/info-1");
}

std::string run(const Arguments &arguments)
{
    const std::string charset = localeCharset();
    const std::optional<PdftkCall> call = parsePdftkCall(arguments, charset);
    if (!call)
        throw usageError(usage);
    requireRegularFile(call->input);
    const OutputTransaction output(call->output);
    InputLinks inputs;
    ChildSpec spec = realTool();
    spec.prompts = call->passwords;
    spec.deadline = timeFor(call->input);
    spec.folder = output.folder().descriptor();
    std::vector<std::string> &words = spec.command;
    words.push_back(inputs.add(spec.folder, call->input, "input-1"));
    if (!call->infoFile.empty()) {
        words.insert(words.end(), {"update_info", "info-1"});
        const std::string info = contentOfInfo(call->infoFile);
        const std::string lossless = losslessInfo(info, charset);
        writeInfo(output.folder(), lossless.empty() ? info : lossless);
    }
    words.insert(words.end(), {"output", OutputTransaction::resultName});
    words.insert(words.end(), call->tail.begin(), call->tail.end());
    inputs.requireSuccess(runChild(spec));
    output.commit();
    return "";
}

} // namespace

int main(int argc, char **argv)
{
    return runTool({"pdftk", usage, run, maskedPdftkArguments}, argc, argv);
}
