#include "conversion.h"

#include "error.h"
#include "filedescriptor.h"
#include "jpegscaling.h"
#include "magick.h"
#include "magickwarnings.h"
#include "text.h"

#include <algorithm>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Pages of a TIFF file that one run takes: finding a page means going through those before it.
size_t pagesPerRun(size_t pages)
{
    constexpr size_t mostRuns = 1000;
    return (pages + mostRuns - 1) / mostRuns;
}

std::string selector(size_t first, size_t count)
{
    const std::string from = std::to_string(first);
    return count == 1 ? "[" + from + "]"
                      : "[" + from + "-" + std::to_string(first + count - 1) + "]";
}

// Of the run that makes this part, in the private folder.
std::string resultName(size_t part)
{
    return "page-" + std::to_string(part + 1);
}

// The folder of the PDF itself is the last resort.
PrivateFolder pixelPlace(const std::string &lastResort)
{
    std::vector<std::string> folders = pixelFolders();
    folders.push_back(lastResort);
    return PrivateFolder::inFirstOf(folders);
}

std::string titleOf(const std::string &output)
{
    const std::string name = fileNameOf(output);
    return name.substr(0, name.rfind('.'));
}

} // namespace

Conversion::Conversion(const ConvertCall &call)
    : m_call(call)
    , m_mayCopy(!changesPixels(call.options))
    , m_mostAtOnce(mostAtOnce(machineCores(), machineMemory()))
    , m_job(call.output)
    , m_pixels(pixelPlace(folderOf(call.output)))
{
}

Outcome Conversion::run()
{
    while (true) {
        while (m_pool.atWork() < m_mostAtOnce && startNext()) {
        }
        // Loaded while the first ones are at work.
        pageLibrary();
        if (m_pool.atWork() == 0)
            return join();
        if (std::optional<Outcome> failure = finish(m_pool.wait()))
            return *failure;
    }
}

bool Conversion::startNext()
{
    if (m_runs.empty() && !planNext())
        return false;
    Run run = std::move(m_runs.front());
    m_runs.pop_front();
    const bool alone = m_call.inputs.size() == 1 && m_runs.empty() && m_parts.size() == 1;
    run.work.atOnce = alone ? 1 : m_mostAtOnce;
    const ConvertLimits limits = limitsFor(run.work, machineMemory(), freeBytesIn(m_pixels.path()));
    ChildSpec spec = magickRun(run.words, limits, m_pixels.path());
    spec.folder = m_job.folder().descriptor();
    m_pool.start(std::move(spec), run.part);
    return true;
}

// False when no image is left that ImageMagick has to convert.
bool Conversion::planNext()
{
    while (m_runs.empty() && m_planned < m_call.inputs.size())
        plan(m_call.inputs[m_planned++]);
    return !m_runs.empty();
}

void Conversion::plan(const std::string &path)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.valid())
        throw systemError("cannot read", path);
    try {
        if (!copy(path, file.get()))
            convert(path, file.get());
    } catch (const ToolError &error) {
        throw ToolError("cannot convert '" + path + "': " + error.what());
    }
}

// Looks also at the files that cannot be copied: those that are not whole are refused here.
bool Conversion::copy(const std::string &path, int file)
{
    const ImageKind kind = imageKind(file);
    if (kind == ImageKind::Gif || kind == ImageKind::Other)
        return false;
    std::optional<std::vector<CopyablePage>> pages = pageLibrary().copyablePages(
        file, m_mayCopy ? askedCompression(m_call.options) : Compression::Other);
    if (!pages)
        return false;
    m_parts.push_back({path, std::move(*pages), fileStamp(file)});
    return true;
}

// The images of a TIFF file are runs of their own.
void Conversion::convert(const std::string &path, int file)
{
    const ImageKind kind = imageKind(file);
    const std::vector<std::string> options = optionsFor(file, kind);
    const std::string input = m_job.addInput(path, inputName(m_planned, path));
    const bool several = kind == ImageKind::Tiff || kind == ImageKind::Gif;
    const size_t images = several ? pageLibrary().imagesIn(file) : 1;
    const auto bytes = static_cast<unsigned long long>(fileStamp(file).size);
    if (kind != ImageKind::Tiff || images == 1) {
        addRun(options, input, {.pages = images, .bytes = bytes});
        return;
    }
    for (size_t first = 0; first < images; first += pagesPerRun(images)) {
        const size_t count = std::min(pagesPerRun(images), images - first);
        addRun(options, input + selector(first, count), {.pages = count, .bytes = bytes});
        m_parts.back().leastPages = count;
    }
}

std::vector<std::string> Conversion::optionsFor(int file, ImageKind kind) const
{
    const bool resized = !m_call.options.empty() && m_call.options.front() == "-resize";
    if (kind != ImageKind::Jpeg || !resized)
        return m_call.options;
    return shrinkingOptions(m_call.options, pageLibrary().jpegSize(file)).value_or(m_call.options);
}

void Conversion::addRun(const std::vector<std::string> &options, const std::string &input,
                        const Workload &work)
{
    const std::string result = resultName(m_parts.size());
    m_runs.push_back({pageWords(options, input, result), m_parts.size(), work});
    m_parts.push_back({.path = m_job.folder().path() + "/" + result});
}

// The outcome of the whole call, when the end of a run is a failure.
std::optional<Outcome> Conversion::finish(const ChildPool::Ended &ended)
{
    const Outcome outcome = m_job.outcomeOf(ended.result);
    if (outcome.status != 0)
        return outcome;
    if (const int signal = m_pool.askedToEnd())
        return Outcome{1, "", "ended by signal " + std::to_string(signal) + "\n"};
    if (tellOfDamage(ended.result.errors))
        return Outcome{1, outcome.output,
                       outcome.errors + "the image is damaged or not complete\n"};
    m_warnings += outcome.errors;
    Outcome failure = m_job.check(resultName(ended.number));
    return failure.status != 0 ? std::optional(failure) : std::nullopt;
}

Outcome Conversion::join()
{
    {
        const FileDescriptor file(openat(m_job.folder().descriptor(), Job::resultName,
                                         O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!file.valid())
            throw systemError("cannot write", m_call.output);
        pageLibrary().writeDocument(file.get(), m_parts, titleOf(m_call.output));
    }
    if (const int signal = m_pool.askedToEnd())
        return {1, "", "ended by signal " + std::to_string(signal) + "\n"};
    Outcome outcome = m_job.deliver();
    if (outcome.status == 0)
        outcome.errors = m_warnings;
    return outcome;
}
