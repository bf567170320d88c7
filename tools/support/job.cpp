#include "job.h"

#include "diagnosis.h"
#include "filedescriptor.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr off_t longestTrailer = 1024;

std::string readAt(int file, off_t offset)
{
    std::array<char, longestTrailer> buffer{};
    const ssize_t count = pread(file, buffer.data(), buffer.size(), offset);
    return {buffer.data(), static_cast<size_t>(std::max<ssize_t>(count, 0))};
}

// ImageMagick 6.9.11 takes no notice of a disk that has become full.
bool isWholePdf(int file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const std::string end = readAt(file, std::max<off_t>(status.st_size - longestTrailer, 0));
    return readAt(file, 0).starts_with("%PDF-") && end.find("%%EOF") != std::string::npos;
}

} // namespace

Job::Job(const std::string &target)
    : m_target(target)
    , m_resultName(safeFileName(fileNameOf(target)))
    , m_folder(folderOf(target))
{
}

std::string Job::addInput(const std::string &path, const std::string &name)
{
    std::string origin = absolutePath(path);
    if (symlinkat(origin.c_str(), m_folder.descriptor(), name.c_str()) == 0) {
        m_inputs.emplace_back(name, path);
        return name;
    }
    if (errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS)
        return origin;
    throw systemError("cannot prepare", path);
}

std::string Job::addFile(const std::string &name, const std::string &content)
{
    const FileDescriptor file(
        openat(m_folder.descriptor(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.valid() ||
        write(file.get(), content.data(), content.size()) != static_cast<ssize_t>(content.size()))
        throw systemError("cannot write", m_folder.path() + "/" + name);
    return name;
}

Outcome Job::run(ChildSpec spec, const std::function<void(int file)> &polish)
{
    spec.folder = m_folder.descriptor();
    const ChildResult result = runChild(spec);
    if (result.succeeded())
        return deliver(polish);
    Outcome outcome = {result.exitStatus(), withOriginalNames(result.output),
                       withOriginalNames(result.errors)};
    if (result.timedOut)
        outcome.errors += "gave up after " + std::to_string(spec.deadline.count()) + " seconds\n";
    else if (WIFSIGNALED(result.waitStatus))
        outcome.errors += "ended by signal " + std::to_string(WTERMSIG(result.waitStatus)) + "\n";
    return outcome;
}

std::string Job::withOriginalNames(std::string messages) const
{
    if (messages.empty())
        return messages;
    for (const auto &[name, path] : m_inputs)
        replaceAll(messages, name, path);
    return messages;
}

Outcome Job::deliver(const std::function<void(int file)> &polish) const
{
    const FileDescriptor file(openat(m_folder.descriptor(), m_resultName.c_str(),
                                     O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!isWholePdf(file.get()))
        return {1, "", "the tool reported success but left no whole PDF\n"};
    if (polish)
        polish(file.get());
    if (renameat(m_folder.descriptor(), m_resultName.c_str(), AT_FDCWD, m_target.c_str()) != 0)
        throw systemError("cannot replace", m_target);
    return {};
}

void requireRegularFile(const std::string &path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || access(path.c_str(), R_OK) != 0)
        throw systemError("cannot read", path);
    if (!S_ISREG(status.st_mode))
        throw ToolError("cannot read '" + path + "': not a regular file");
}
