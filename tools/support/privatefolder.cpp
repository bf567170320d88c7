#include "privatefolder.h"

#include "diagnosis.h"

#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int mostFolders = 10000;

struct CloseDirectory
{
    void operator()(DIR *directory) const { closedir(directory); }
};

} // namespace

PrivateFolder::PrivateFolder(const std::string &parent)
    : m_parentPath(parent)
    , m_parent(open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC))
{
    if (!m_parent.valid())
        throw systemError("cannot use the folder", parent);
    for (int number = 1; number <= mostFolders; ++number) {
        if (take(".tessaro-" + std::to_string(number)))
            return;
    }
    throw ToolError("too many calls at work in the folder '" + parent + "'");
}

PrivateFolder::~PrivateFolder()
{
    empty();
    unlinkat(m_parent.get(), m_name.c_str(), AT_REMOVEDIR);
}

bool PrivateFolder::take(const std::string &name)
{
    const bool made = mkdirat(m_parent.get(), name.c_str(), 0700) == 0;
    if (!made && errno != EEXIST)
        throw systemError("cannot make a folder in", m_parentPath);
    // Inherited by the real tool on purpose: the lock lasts while either of them lives.
    m_folder =
        FileDescriptor(openat(m_parent.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW));
    if (!m_folder.valid())
        return false;
    const bool locked = flock(m_folder.get(), LOCK_EX | LOCK_NB) == 0;
    // A file system without locks cannot tell a left-over folder: there only a new one will do.
    const bool unlockable = !locked && errno != EWOULDBLOCK;
    const bool taken = made ? locked || unlockable : locked && belongsToUser();
    if (!taken || !isCurrent(name))
        return false;
    m_name = name;
    if (!made)
        empty();
    return true;
}

// Between opening and locking, a finishing call may have removed the folder.
bool PrivateFolder::isCurrent(const std::string &name) const
{
    struct stat held = {}, named = {};
    return fstat(m_folder.get(), &held) == 0 &&
           fstatat(m_parent.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           held.st_ino == named.st_ino && held.st_dev == named.st_dev;
}

// In a shared folder such as /var/tmp another user may have put one of our names there.
bool PrivateFolder::belongsToUser() const
{
    struct stat held = {};
    return fstat(m_folder.get(), &held) == 0 && held.st_uid == geteuid();
}

void PrivateFolder::empty() const
{
    const int copy = openat(m_folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, CloseDirectory> directory(copy < 0 ? nullptr : fdopendir(copy));
    while (const dirent *entry = directory ? readdir(directory.get()) : nullptr) {
        if (entry->d_type != DT_DIR)
            unlinkat(m_folder.get(), entry->d_name, 0);
    }
}
