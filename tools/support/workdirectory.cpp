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
constexpr int maxNamesSearched = 10'000;
// Another call may remove a new folder as stale before it is locked.
constexpr int maxTries = 100;

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

// The names of the folders that are left.
std::vector<std::string> removeFiles(int folder)
{
    std::vector<std::string> folders;
    const Directory directory = entriesOf(folder);
    while (const dirent *entry = directory ? readdir(directory.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        const bool stays = name == "." || name == ".." || (name == mark && entry->d_type != DT_DIR);
        if (!stays && unlinkat(folder, entry->d_name, 0) != 0)
            folders.emplace_back(name);
    }
    return folders;
}

// Whatever its mode is; never what a link leads to.
FileDescriptor openAsOwner(int parent, const std::string &name)
{
    const FileDescriptor folder(
        openat(parent, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    chmod(descriptorPath(folder.get()).c_str(), 0700);
    return FileDescriptor(openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

void removeFolder(int folder, int parent, const char *name)
{
    // A tool that was taken over can leave folders nested to any depth: what is in one is moved up,
    // until none is left.
    int moved = 0;
    std::vector<std::string> folders = removeFiles(folder);
    while (!folders.empty()) {
        const std::string current = std::move(folders.back());
        folders.pop_back();
        const FileDescriptor subfolder = openAsOwner(folder, current);
        if (!subfolder.valid())
            continue;
        for (const std::string &nested : removeFiles(subfolder.get())) {
            std::string newName;
            int result = -1;
            const FileDescriptor opened = openAsOwner(subfolder.get(), nested);
            do {
                newName = "moved-" + std::to_string(moved++);
                result = renameat(subfolder.get(), nested.c_str(), folder, newName.c_str());
            } while (result != 0 && (errno == ENOTEMPTY || errno == EEXIST));
            if (result == 0)
                folders.push_back(newName);
        }
        unlinkat(subfolder.get(), mark, 0);
        unlinkat(folder, current.c_str(), AT_REMOVEDIR);
    }
    // Last, so that another call can take up a removal that was cut short.
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

WorkDirectory::WorkDirectory(const std::string &parent)
    : m_parentPath(parent)
    , m_parent(open(parent.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC))
{
    struct stat status = {};
    if (!m_parent.valid() || fstat(m_parent.get(), &status) != 0)
        throw systemError("cannot use the folder", parent);
    for (int i = 0; i < maxTries; ++i) {
        if (!create())
            continue;
        if (!isOnlySubfolder(m_parent.get(), status.st_nlink))
            removeStale();
        return;
    }
    throw ToolError("cannot keep a folder in '" + parent + "'");
}

WorkDirectory::~WorkDirectory()
{
    removeFolder(m_folder.get(), m_parent.get(), m_name.c_str());
}

std::unique_ptr<WorkDirectory> WorkDirectory::inFirstOf(const std::vector<std::string> &parents)
{
    for (size_t i = 0; i + 1 < parents.size(); ++i) {
        try {
            return std::make_unique<WorkDirectory>(parents[i]);
        } catch (const ToolError &) {
            continue;
        }
    }
    return std::make_unique<WorkDirectory>(parents.back());
}

std::string WorkDirectory::plainPath() const
{
    return descriptorPath(m_folder.get());
}

FileDescriptor WorkDirectory::addFolder(const std::string &name) const
{
    FileDescriptor folder;
    if (mkdirat(m_folder.get(), name.c_str(), 0700) == 0)
        folder = FileDescriptor(
            openat(m_folder.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder.valid())
        throw systemError("cannot create a folder in", path());
    return folder;
}

FileDescriptor WorkDirectory::addFile(const std::string &name) const
{
    FileDescriptor file(
        openat(m_folder.get(), name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file.valid())
        throw systemError("cannot write", path() + "/" + name);
    return file;
}

// False when another call has removed the new folder as stale.
bool WorkDirectory::create()
{
    std::string path = descriptorPath(m_parent.get()) + "/";
    path.append(prefix).append(pattern);
    if (!mkdtemp(path.data()))
        throw systemError("cannot create a folder in", m_parentPath);
    m_name = fileNameOf(path);
    // Inherited by the real tool on purpose: the lock lasts while either of them lives.
    m_folder =
        FileDescriptor(openat(m_parent.get(), m_name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW));
    if (!m_folder.valid() && errno != ENOENT)
        giveUp();
    // A file system without locks cannot say which folders are stale: nobody removes any there.
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

void WorkDirectory::giveUp() const
{
    const int error = errno;
    unlinkat(m_parent.get(), m_name.c_str(), AT_REMOVEDIR);
    errno = error;
    throw systemError("cannot create a folder in", m_parentPath);
}

void WorkDirectory::removeStale() const
{
    const Directory directory = entriesOf(m_parent.get());
    for (int i = 0; directory && i < maxNamesSearched; ++i) {
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
