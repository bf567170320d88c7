#include "error.h"
#include "finishing.h"
#include "inputlinks.h"
#include "outputtransaction.h"
#include "pdftkcall.h"
#include "text.h"
#include "toolmain.h"

#include <algorithm>
#include <chrono>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr unsigned long long mebibyte = 1024ULL * 1024;

unsigned long long sizeOf(const std::string &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? static_cast<unsigned long long>(status.st_size) : 0;
}

// Hundreds of times what an idle machine takes.
std::chrono::seconds timeFor(const std::string &pdf)
{
    constexpr std::chrono::seconds minTime{60};
    return minTime + std::chrono::seconds(2 * sizeOf(pdf) / mebibyte);
}

// A small PDF can unpack to more than the machine has.
void limitMemory()
{
    constexpr rlim_t maxMemory = 4096 * mebibyte;
    rlimit limit = {};
    getrlimit(RLIMIT_AS, &limit);
    limit.rlim_cur = std::min(limit.rlim_cur, maxMemory);
    setrlimit(RLIMIT_AS, &limit);
}

std::vector<InfoEntry> entriesOf(const std::string &infoFile, const std::string &charset)
{
    constexpr unsigned long long maxSize = 16 * mebibyte;
    requireRegularFile(infoFile);
    if (sizeOf(infoFile) > maxSize)
        throw ToolError("cannot read '" + infoFile + "': too large for a description");
    const std::optional<std::string> content = readFile(infoFile);
    if (!content)
        throw systemError("cannot read", infoFile);
    const std::optional<std::vector<InfoEntry>> entries = infoEntries(*content, charset);
    if (!entries)
        throw ToolError("cannot read '" + infoFile +
                        "': it does not begin with a pair of lines, InfoKey: and InfoValue:");
    return *entries;
}

std::string run(const Arguments &arguments)
{
    const std::optional<PdftkCall> call = parsePdftkCall(arguments);
    if (!call)
        throw usageError(pdftkUsage);
    limitMemory();
    requireRegularFile(call->input);
    const std::string charset = localeCharset();
    std::vector<InfoEntry> entries;
    if (call->infoFile)
        entries = entriesOf(*call->infoFile, charset);
    const std::optional<Encryption> encryption = encryptionOf(*call, charset);
    const OutputTransaction output(call->output);
    SubprocessSpec bounds;
    bounds.deadline = timeFor(call->input);
    bounds.sandbox = {
        .files = {{call->input, Access::Read}, {output.folder().plainPath(), Access::Write}}};
    runConfined("pdftk", "'" + call->input + "'", bounds, [&] {
        FileOutput finished(output.folder().addFile(OutputTransaction::resultName), call->output);
        writeFinishedPdf(call->input, entries, encryption, finished);
        return std::string();
    });
    output.commit();
    return "";
}

} // namespace

int main(int argc, char **argv)
{
    return runTool({"pdftk", pdftkUsage, run, maskedPdftkArguments}, argc, argv);
}
