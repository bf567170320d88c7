#pragma once

#include "subprocess.h"
#include "text.h"
#include "workdirectory.h"

#include <string>
#include <vector>

/// Input files under plain names, so that nothing in a user's path is an option, a pattern or a
/// format to a real tool.
class InputLinks
{
public:
    /// `elsewhere` takes the links where the folder of a tool takes none.
    explicit InputLinks(const WorkDirectory &elsewhere)
        : m_elsewhere(elsewhere)
    {
    }

    /// Makes the file at `path` known as `name`, which no other input may have, to a tool that
    /// works in `folder`, and returns the word for its command line. Where no folder takes links,
    /// the file is copied. Throws ToolError when that fails too.
    std::string add(int folder, const std::string &path, const std::string &name);

    /// What a tool that succeeded wrote to its standard error, with the user's own paths. Throws
    /// ToolError with its messages when it failed.
    std::string requireSuccess(const SubprocessResult &result) const;

private:
    const WorkDirectory &m_elsewhere;
    Replacements m_originalPaths;
};

/// Throws ToolError, naming `path`, unless a regular file that may be read is there. Opening
/// anything else could wait forever (FIFO) or read without end (device).
void requireRegularFile(const std::string &path);
