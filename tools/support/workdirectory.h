#pragma once

#include "filedescriptor.h"

#include <memory>
#include <string>
#include <vector>

/// A folder of one call, mode 0700, with an unpredictable name (".tessaro-" and six characters)
/// inside a given folder. It is removed at the end of the call with all files in it and in its
/// subfolders.
///
/// The folder is locked for as long as this process or a child that inherited descriptor() lives.
/// Unlocked ones of this user are left over from calls that were killed: creating a folder removes
/// those beside it. A parent without other folders in it is not searched, and of one with very
/// many entries only the first some thousand are looked at.
class WorkDirectory
{
public:
    /// Throws ToolError when `parent` is no folder that one may write in, and leaves nothing there.
    explicit WorkDirectory(const std::string &parent);
    WorkDirectory(const WorkDirectory &) = delete;
    WorkDirectory &operator=(const WorkDirectory &) = delete;
    ~WorkDirectory();

    /// A folder in the first of `parents`, of which there must be one, that takes it; throws the
    /// failure of the last.
    static std::unique_ptr<WorkDirectory> inFirstOf(const std::vector<std::string> &parents);

    int descriptor() const { return m_folder.get(); }
    /// As a path below the parent as it was given.
    std::string path() const { return m_parentPath + "/" + m_name; }
    /// As a path of plain characters, whatever the parent is called: for this process, and for
    /// children that inherit descriptor().
    std::string plainPath() const;

    /// Creates the subfolder `name`, or throws ToolError.
    FileDescriptor addFolder(const std::string &name) const;
    /// Creates the file `name`, open for reading and writing, or throws ToolError.
    FileDescriptor addFile(const std::string &name) const;

private:
    bool create();
    [[noreturn]] void giveUp() const;
    void removeStale() const;

    std::string m_parentPath;
    FileDescriptor m_parent;
    FileDescriptor m_folder;
    std::string m_name;
};

/// Where temporary files may go: TMPDIR if it is set, /var/tmp, /tmp and XDG_RUNTIME_DIR.
std::vector<std::string> temporaryFolders();
