#include "job.h"

#include "error.h"
#include "filedescriptor.h"
#include "text.h"

#include <algorithm>
#include <array>
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
    , m_folder(folderOf(m_target.path()))
    , m_places(temporaryFolders())
{
}

std::string Job::addInput(const std::string &path, const std::string &name)
{
    std::string word = makeKnown(absolutePath(path), name);
    m_originalNames.emplace(word, path);
    return word;
}

// vfat and exFAT know no links. A hard link or a copy never stands for anything but the file.
std::string Job::makeKnown(const std::string &origin, const std::string &name)
{
    if (symlinkat(origin.c_str(), m_folder.descriptor(), name.c_str()) == 0)
        return name;
    if (std::string word = linkElsewhere(origin, name); !word.empty())
        return word;
    if (linkat(AT_FDCWD, origin.c_str(), m_folder.descriptor(), name.c_str(), AT_SYMLINK_FOLLOW) !=
        0)
        copy(origin, name);
    return name;
}

// "" when no place takes a link.
std::string Job::linkElsewhere(const std::string &origin, const std::string &name)
{
    for (; !m_places.empty(); m_places.erase(m_places.begin())) {
        try {
            if (!m_elsewhere)
                m_elsewhere.emplace(m_places.front());
        } catch (const ToolError &) {
            continue;
        }
        if (symlinkat(origin.c_str(), m_elsewhere->descriptor(), name.c_str()) == 0)
            return m_elsewhere->plainPath() + "/" + name;
        m_elsewhere.reset();
    }
    return "";
}

void Job::copy(const std::string &origin, const std::string &name) const
{
    const FileDescriptor from(::open(origin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const FileDescriptor to(
        openat(m_folder.descriptor(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    std::array<char, 65536> buffer{};
    ssize_t count = -1;
    while (from.valid() && to.valid() &&
           (count = read(from.get(), buffer.data(), buffer.size())) > 0) {
        if (!writeAll(to.get(), {buffer.data(), static_cast<size_t>(count)}))
            break;
    }
    if (count != 0)
        throw systemError("cannot prepare", origin);
}

std::string Job::addFile(const std::string &name, const std::string &content)
{
    const FileDescriptor file(
        openat(m_folder.descriptor(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.valid() || !writeAll(file.get(), content))
        throw systemError("cannot write", m_folder.path() + "/" + name);
    return name;
}

Outcome Job::run(ChildSpec spec)
{
    spec.folder = m_folder.descriptor();
    const ChildResult result = runChild(spec);
    return result.succeeded() ? deliver() : outcomeOf(result);
}

Outcome Job::outcomeOf(const ChildResult &result) const
{
    Outcome outcome = {result.exitStatus(), replaced(result.output, m_originalNames),
                       replaced(result.errors, m_originalNames)};
    if (result.timedOut)
        outcome.errors += "gave up: it took too long\n";
    else if (WIFSIGNALED(result.waitStatus))
        outcome.errors += "ended by signal " + std::to_string(WTERMSIG(result.waitStatus)) + "\n";
    return outcome;
}

FileDescriptor Job::open(const std::string &name) const
{
    return FileDescriptor(
        openat(m_folder.descriptor(), name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

Outcome Job::check(const std::string &name) const
{
    return isWholePdf(open(name).get())
               ? Outcome{}
               : Outcome{1, "", "the tool reported success but left no whole PDF\n"};
}

Outcome Job::deliver() const
{
    const FileDescriptor file = open(resultName);
    if (!isWholePdf(file.get()))
        return check(resultName);
    m_target.replaceBy(m_folder.descriptor(), resultName, file.get());
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
