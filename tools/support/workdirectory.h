#pragma once

#include "filedescriptor.h"

#include <string>
#include <vector>

/// A folder of one call, mode 0700, with a name that nobody can foresee (".tessaro-" and six
/// characters) inside a given folder, and removed with all files in it at the end of the call.
///
/// The folder is locked for as long as this process or a child that inherited descriptor() lives.
/// Unlocked ones of this user were left by calls that were killed: making a folder clears away
/// those beside it. A parent without other folders in it is not searched, and of one with very
/// many entries only the first some thousand are looked at.
class PrivateFolder
{
public:
    /// Throws ToolError when `parent` is no folder that one may write in, and leaves nothing there.
    explicit PrivateFolder(const std::string &parent);
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;
    ~PrivateFolder();

    /// A folder in the first of `parents`, of which there must be one, that takes it; throws the
    /// failure of the last.
    static PrivateFolder inFirstOf(const std::vector<std::string> &parents);

    int descriptor() const { return m_folder.get(); }
    /// As a path below the parent as it was given.
    std::string path() const { return m_parentPath + "/" + m_name; }
    /// As a path of plain characters, whatever the parent is called: for this process, and for
    /// children that inherit descriptor().
    std::string plainPath() const;

private:
    bool make();
    [[noreturn]] void giveUp() const;
    void sweep() const;

    std::string m_parentPath;
    FileDescriptor m_parent;
    FileDescriptor m_folder;
    std::string m_name;
};

/// Where temporary files may go: TMPDIR if it is set, /var/tmp, /tmp and XDG_RUNTIME_DIR.
std::vector<std::string> temporaryFolders();
