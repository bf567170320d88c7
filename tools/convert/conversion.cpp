#include "conversion.h"

#include "error.h"
#include "magick.h"
#include "magickwarnings.h"
#include "outputtransaction.h"
#include "text.h"

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr const char *pageName = "page.pdf";

// Pages of a TIFF file that one run takes: finding a page means going through those before it.
size_t pagesPerRun(size_t pages)
{
    constexpr size_t maxRuns = 1000;
    return (pages + maxRuns - 1) / maxRuns;
}

std::string selectorOf(size_t first, size_t count)
{
    const std::string from = std::to_string(first);
    return count == 1 ? "[" + from + "]"
                      : "[" + from + "-" + std::to_string(first + count - 1) + "]";
}

// The folder of the run that makes this part, in the folder of the call.
std::string runFolder(size_t part)
{
    return "run-" + std::to_string(part + 1);
}

// Desktop programs name files in UTF-8 in every locale, others in its charset.
std::string titleOf(const std::string &output)
{
    const std::string file = fileNameOf(output);
    const std::string name = file.substr(0, file.rfind('.'));
    const CodePoints text = decoded(name, "UTF-8");
    return encoded(text.find(replacement) == text.npos ? text : decoded(name, localeCharset()));
}

} // namespace

Conversion::Conversion(const ConvertCall &call, const WorkDirectory &folder,
                       const WorkDirectory &pixels)
    : m_call(call)
    , m_concurrency(maxConcurrency(machineCores(), machineMemory()))
    , m_folder(folder)
    , m_pixels(pixels)
    , m_spool(folder.addFile("spool"))
    , m_inputs(pixels)
{
}

std::string Conversion::run()
{
    while (true) {
        while (m_pool.atWork() < m_concurrency && startNext()) {
        }
        if (m_pool.atWork() == 0)
            break;
        finish(m_pool.wait());
    }
    join();
    return m_warnings;
}

// False when no image is left that ImageMagick has to convert.
bool Conversion::startNext()
{
    while (m_runs.empty() && m_planned < m_call.inputs.size()) {
        m_pool.requireNoSignal();
        plan(m_call.inputs[m_planned++]);
    }
    if (m_runs.empty())
        return false;
    const Run run = std::move(m_runs.front());
    m_runs.pop_front();
    start(run);
    return true;
}

void Conversion::plan(const std::string &path)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.valid())
        throw systemError("cannot read", path);
    const FileIdentity identity = identityOf(file.get(), path);
    ImagePlan plan;
    try {
        plan = planImage(file.get(), m_call.options, m_spool);
    } catch (const ToolError &error) {
        throw ToolError("cannot convert '" + path + "': " + error.what());
    }
    requireUnchanged(file.get(), path, identity);
    if (auto *copied = std::get_if<CopiedImage>(&plan))
        m_parts.push_back({path, std::move(copied->pages), identity});
    else
        addRuns(path, std::get<ConvertedImage>(plan),
                static_cast<unsigned long long>(identity.size));
}

// Each image of a TIFF file is a run of its own.
void Conversion::addRuns(const std::string &path, const ConvertedImage &image,
                         unsigned long long bytes)
{
    const bool isSplit = image.kind == ImageKind::Tiff && image.images > 1;
    const size_t perRun = isSplit ? pagesPerRun(image.images) : image.images;
    for (size_t first = 0; first < image.images; first += perRun) {
        const size_t count = std::min(perRun, image.images - first);
        const size_t part = m_parts.size();
        m_runs.push_back({path,
                          image,
                          isSplit ? selectorOf(first, count) : "",
                          part,
                          {.pages = count, .bytes = bytes}});
        DocumentPart &made = m_parts.emplace_back();
        made.path = m_folder.path() + "/" + runFolder(part) + "/" + pageName;
        made.minPages = isSplit ? count : 1;
    }
}

// Each run has folders of its own, for the page and for its pixels.
void Conversion::start(const Run &run)
{
    const std::string name = runFolder(run.part);
    const FileDescriptor folder = m_folder.addFolder(name);
    m_pixels.addFolder(name);
    const std::string input =
        m_inputs.add(folder.get(), run.path, inputName(run.part + 1, run.path)) + run.selector;
    Workload work = run.work;
    const bool alone = m_call.inputs.size() == 1 && m_runs.empty() && m_parts.size() == 1;
    work.concurrency = alone ? 1 : m_concurrency;
    SubprocessSpec spec =
        magickCommand(pageArguments(m_call.options, run.image, input, pageName),
                      limitsFor(work, machineMemory(), freeBytesIn(m_pixels.path())),
                      m_pixels.path() + "/" + name);
    spec.folder = folder.get();
    spec.sandbox =
        magickSandbox(spec.command.front(), absolutePath(run.path),
                      {m_folder.plainPath() + "/" + name, m_pixels.plainPath() + "/" + name});
    m_pool.start(std::move(spec), run.part);
}

void Conversion::finish(SubprocessPool::Ended ended)
{
    forgiveWrongFileSize(ended.result);
    const std::string warnings = m_inputs.requireSuccess(ended.result);
    m_pool.requireNoSignal();
    if (reportsDamage(ended.result.errors))
        throw ToolError({1, "", warnings + "the image is damaged or not complete\n"});
    m_warnings += warnings;
    validatePdf(m_folder.descriptor(), runFolder(ended.number) + "/" + pageName);
}

void Conversion::join()
{
    FileOutput output(m_folder.addFile(OutputTransaction::resultName), m_call.output);
    writeDocument(output, m_parts, m_spool.file(), titleOf(m_call.output),
                  [this] { m_pool.requireNoSignal(); });
    m_pool.requireNoSignal();
}
