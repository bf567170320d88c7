#include "workdirectory.h"

#include "error.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::string_view prefix = ".tessaro-";
constexpr std::string_view pattern = "XXXXXX";
// In every folder of ours, so that one that a user has called like this keeps its files.
constexpr const char *mark = ".tessaro";
// Reading so many names takes some milliseconds.
constexpr int mostNamesSearched = 10'000;
// A sweep beside us may take a folder away in the moment between its making and its locking.
constexpr int mostTries = 100;

struct CloseDirectory
{
    void operator()(DIR *directory) const { closedir(directory); }
};
using Directory = std::unique_ptr<DIR, CloseDirectory>;

std::string descriptorPath(int descriptor)
{
    return "/proc/self/fd/" + std::to_string(descriptor);
}

Directory entriesOf(int folder)
{
    FileDescriptor copy(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Directory directory(copy.valid() ? fdopendir(copy.get()) : nullptr);
    if (directory)
        copy.release();
    return directory;
}

bool isCurrent(int folder, int parent, const char *name)
{
    struct stat held = {}, named = {};
    return fstat(folder, &held) == 0 && fstatat(parent, name, &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           held.st_ino == named.st_ino && held.st_dev == named.st_dev;
}

bool belongsToUser(int folder)
{
    struct stat status = {};
    return fstat(folder, &status) == 0 && status.st_uid == geteuid();
}

bool isMarked(int folder)
{
    struct stat status = {};
    return fstatat(folder, mark, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

void removeFolder(int folder, int parent, const char *name)
{
    const Directory directory = entriesOf(folder);
    while (const dirent *entry = directory ? readdir(directory.get()) : nullptr) {
        if (entry->d_type != DT_DIR && std::string_view(entry->d_name) != mark)
            unlinkat(folder, entry->d_name, 0);
    }
    // Last, so that a removal that is cut short can be taken up again.
    unlinkat(folder, mark, 0);
    unlinkat(parent, name, AT_REMOVEDIR);
}

bool hasOurName(std::string_view name)
{
    return name.size() == prefix.size() + pattern.size() && name.starts_with(prefix) &&
           std::all_of(name.begin() + prefix.size(), name.end(),
                       [](unsigned char character) { return isalnum(character) != 0; });
}

void removeLeftover(int parent, const char *name)
{
    const FileDescriptor folder(
        openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const bool left = folder.valid() && belongsToUser(folder.get()) &&
                      flock(folder.get(), LOCK_EX | LOCK_NB) == 0 &&
                      isCurrent(folder.get(), parent, name);
    if (left && isMarked(folder.get()))
        removeFolder(folder.get(), parent, name);
    else if (left)
        unlinkat(parent, name, AT_REMOVEDIR);
}

// Every folder is a link to its parent on most file systems; two are the parent's own.
bool isOnlySubfolder(int parent, nlink_t linksBefore)
{
    struct stat status = {};
    return linksBefore == 2 && fstat(parent, &status) == 0 && status.st_nlink == 3;
}

} // namespace

PrivateFolder::PrivateFolder(const std::string &parent)
    : m_parentPath(parent)
    , m_parent(open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC))
{
    struct stat status = {};
    if (!m_parent.valid() || fstat(m_parent.get(), &status) != 0)
        throw systemError("cannot use the folder", parent);
    for (int i = 0; i < mostTries; ++i) {
        if (!make())
            continue;
        if (!isOnlySubfolder(m_parent.get(), status.st_nlink))
            sweep();
        return;
    }
    throw ToolError("cannot keep a folder in '" + parent + "'");
}

PrivateFolder::~PrivateFolder()
{
    removeFolder(m_folder.get(), m_parent.get(), m_name.c_str());
}

PrivateFolder PrivateFolder::inFirstOf(const std::vector<std::string> &parents)
{
    for (size_t i = 0; i + 1 < parents.size(); ++i) {
        try {
            return PrivateFolder(parents[i]);
        } catch (const ToolError &) {
            continue;
        }
    }
    return PrivateFolder(parents.back());
}

std::string PrivateFolder::plainPath() const
{
    return descriptorPath(m_folder.get());
}

// False when a sweep beside us has taken the new folder for a leftover.
bool PrivateFolder::make()
{
    std::string path = descriptorPath(m_parent.get()) + "/";
    path.append(prefix).append(pattern);
    if (!mkdtemp(path.data()))
        throw systemError("cannot make a folder in", m_parentPath);
    m_name = fileNameOf(path);
    // Inherited by the real tool on purpose: the lock lasts while either of them lives.
    m_folder =
        FileDescriptor(openat(m_parent.get(), m_name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW));
    if (!m_folder.valid() && errno != ENOENT)
        giveUp();
    // A file system without locks does not tell which folders are left over: nobody sweeps there.
    if (flock(m_folder.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return false;
    if (!isCurrent(m_folder.get(), m_parent.get(), m_name.c_str()))
        return false;
    const FileDescriptor marked(
        openat(m_folder.get(), mark, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!marked.valid())
        giveUp();
    return true;
}

void PrivateFolder::giveUp() const
{
    const int error = errno;
    unlinkat(m_parent.get(), m_name.c_str(), AT_REMOVEDIR);
    errno = error;
    throw systemError("cannot make a folder in", m_parentPath);
}

void PrivateFolder::sweep() const
{
    const Directory directory = entriesOf(m_parent.get());
    for (int i = 0; directory && i < mostNamesSearched; ++i) {
        const dirent *entry = readdir(directory.get());
        if (!entry)
            return;
        if (hasOurName(entry->d_name) && entry->d_name != m_name)
            removeLeftover(m_parent.get(), entry->d_name);
    }
}

std::vector<std::string> temporaryFolders()
{
    std::vector<std::string> folders;
    for (const char *folder : {static_cast<const char *>(getenv("TMPDIR")), "/var/tmp", "/tmp",
                               static_cast<const char *>(getenv("XDG_RUNTIME_DIR"))}) {
        if (folder && *folder == '/')
            folders.emplace_back(folder);
    }
    return folders;
}
