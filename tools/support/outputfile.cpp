#include "outputfile.h"

#include "error.h"
#include "filedescriptor.h"
#include "filerights.h"
#include "text.h"

#include <cerrno>
#include <climits>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// As many as Linux itself follows.
constexpr int maxLinks = 40;

// The rule by which Linux follows links (fs.protected_symlinks), as it does not ask for a link
// that is read instead: in a folder such as /tmp anybody can put one.
bool isTrusted(const struct stat &link, const std::string &folder)
{
    struct stat holder = {};
    if (stat(folder.c_str(), &holder) != 0)
        return false;
    const bool shared = (holder.st_mode & S_ISVTX) != 0 && (holder.st_mode & S_IWOTH) != 0;
    return !shared || link.st_uid == geteuid() || link.st_uid == holder.st_uid;
}

std::string contentOfLink(int link, const std::string &path)
{
    std::string content(PATH_MAX, '\0');
    const ssize_t length = readlinkat(link, "", content.data(), content.size());
    if (length <= 0)
        throw systemError("cannot read the link", path);
    content.resize(static_cast<size_t>(length));
    return content;
}

std::string followed(std::string path)
{
    for (int i = 0; i <= maxLinks; ++i) {
        const FileDescriptor file(open(path.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
        struct stat status = {};
        if (!file.valid() || fstat(file.get(), &status) != 0 || !S_ISLNK(status.st_mode))
            return path;
        const std::string folder = folderOf(path);
        if (!isTrusted(status, folder))
            throw ToolError("cannot replace '" + path + "': a link of another user");
        std::string content = contentOfLink(file.get(), path);
        if (!content.starts_with('/'))
            content.insert(0, folder + "/");
        path = std::move(content);
    }
    errno = ELOOP;
    throw systemError("cannot replace", path);
}

// Some file systems have nothing to be flushed.
bool isOnDisk(int file)
{
    return fdatasync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

} // namespace

OutputFile::OutputFile(const std::string &path)
    : m_path(followed(path))
{
    requireReplaceable();
}

void OutputFile::requireReplaceable() const
{
    struct stat status = {};
    if (lstat(m_path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw ToolError("cannot replace '" + m_path + "': not a regular file");
}

void OutputFile::replaceBy(int folder, const std::string &name, int file) const
{
    requireReplaceable();
    takeOverRights(file, m_path);
    if (!isOnDisk(file))
        throw systemError("cannot write", m_path);
    if (renameat(folder, name.c_str(), AT_FDCWD, m_path.c_str()) != 0)
        throw systemError("cannot replace", m_path);
}
