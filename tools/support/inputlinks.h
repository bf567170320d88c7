#pragma once

#include "subprocess.h"
#include "text.h"
#include "workdirectory.h"

#include <optional>
#include <string>
#include <vector>

/// Input files under plain names, so that nothing in a user's path is an option, a pattern or a
/// format to a real tool.
class InputLinks
{
public:
    InputLinks();

    /// Makes the file at `path` known as `name`, which no other input may have, to a tool that
    /// works in `folder`, and returns the word for its command line. Where the folder takes no
    /// links, they stand in a temporary folder; where none does, the file is copied. Throws
    /// ToolError when that fails too.
    std::string add(int folder, const std::string &path, const std::string &name);

    /// What a tool that succeeded wrote to its standard error, with the user's own paths. Throws
    /// ToolError with its messages when it failed.
    std::string requireSuccess(const ChildResult &result) const;

private:
    std::optional<std::string> addElsewhere(const std::string &path, const std::string &name);

    /// Places for links that have not been tried yet, beginning with that of m_elsewhere.
    std::vector<std::string> m_places;
    std::optional<WorkDirectory> m_elsewhere;
    Replacements m_originalPaths;
};

/// Throws ToolError, naming `path`, unless a regular file that may be read is there. Opening
/// anything else could wait forever (FIFO) or read without end (device).
void requireRegularFile(const std::string &path);
