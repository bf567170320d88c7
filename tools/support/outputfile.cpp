#include "outputfile.h"

#include "error.h"
#include "filedescriptor.h"
#include "hardening.h"
#include "text.h"

#include <cerrno>
#include <climits>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr mode_t permissions = 0777;
constexpr mode_t newFile = 0666;
constexpr mode_t forGroup = 070;

// As many as Linux itself follows.
constexpr int mostLinks = 40;

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
    for (int i = 0; i <= mostLinks; ++i) {
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

Target::Target(const std::string &path)
    : m_path(followed(path))
{
    [[maybe_unused]] const std::optional<struct stat> old = present();
}

std::optional<struct stat> Target::present() const
{
    struct stat status = {};
    if (lstat(m_path.c_str(), &status) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode))
        throw ToolError("cannot replace '" + m_path + "': not a regular file");
    return status;
}

// A file system that knows no modes or groups refuses to change them, and needs no change.
void Target::adoptRights(int file) const
{
    struct stat status = {};
    const std::optional<struct stat> old = present();
    mode_t mode = old ? old->st_mode & permissions : newFile & ~userMask();
    const bool sameGroup = !old || (fstat(file, &status) == 0 && status.st_gid == old->st_gid) ||
                           fchown(file, static_cast<uid_t>(-1), old->st_gid) == 0;
    if (!sameGroup)
        mode &= ~forGroup;
    [[maybe_unused]] const int result = fchmod(file, mode);
}

void Target::replaceBy(int folder, const std::string &name, int file) const
{
    adoptRights(file);
    if (!isOnDisk(file))
        throw systemError("cannot write", m_path);
    if (renameat(folder, name.c_str(), AT_FDCWD, m_path.c_str()) != 0)
        throw systemError("cannot replace", m_path);
}
