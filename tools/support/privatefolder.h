#pragma once

#include "filedescriptor.h"

#include <string>

/// A folder of one call, mode 0700, named ".tessaro-<number>" inside a given folder, and removed
/// with all files in it at the end of the call.
///
/// The folder is locked for as long as this process or a child that inherited descriptor() lives.
/// One that is found unlocked was left by a call that was killed: it is emptied and taken over,
/// so that such folders never pile up, and no folder has to be searched for them.
class PrivateFolder
{
public:
    /// Throws ToolError when `parent` is no folder that one may write in.
    explicit PrivateFolder(const std::string &parent);
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;
    ~PrivateFolder();

    int descriptor() const { return m_folder.get(); }
    /// As a path below the parent as it was given.
    std::string path() const { return m_parentPath + "/" + m_name; }

private:
    bool take(const std::string &name);
    bool isCurrent(const std::string &name) const;
    bool belongsToUser() const;
    void empty() const;

    std::string m_parentPath;
    FileDescriptor m_parent;
    FileDescriptor m_folder;
    std::string m_name;
};
