#pragma once

#include <string>

/// The file that a finished one is to be moved over; it need not be there yet.
class OutputFile
{
public:
    /// `path`, or what it leads to if it is a symbolic link. Throws ToolError when something else
    /// than a regular file is there, or a link that another user may have put into a shared folder.
    explicit OutputFile(const std::string &path);

    /// Where the file is: in the same folder a new one can be moved over it in one step.
    const std::string &path() const { return m_path; }

    /// Moves the file `name` of the folder of descriptor `folder`, open as `file`, over the target,
    /// once its content is on the disk. It gets the rights of the file that it replaces
    /// (filerights.h). Throws ToolError, and leaves the target as it was.
    void replaceBy(int folder, const std::string &name, int file) const;

private:
    void requireReplaceable() const;

    std::string m_path;
};
