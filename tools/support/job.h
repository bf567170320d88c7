#pragma once

#include "outputfile.h"
#include "subprocess.h"
#include "toolresult.h"
#include "words.h"
#include "workdirectory.h"

#include <optional>
#include <string>
#include <vector>

/// A run of a real tool that makes one PDF. The tool works in a private folder beside the target,
/// where every file has a short and plain name; only a whole PDF is moved over the target, and in
/// every other case the target stays as it was.
class Job
{
public:
    /// Throws ToolError when nothing can be written beside `target`.
    explicit Job(const std::string &target);

    /// Makes the file at `path` known to the tool by a plain path that ends in `name`, and returns
    /// that path, which is the word for the tool's command line. Where the target's folder takes no
    /// links, they stand in another private folder; where none does, the file is copied. Throws
    /// ToolError when that fails too.
    std::string addInput(const std::string &path, const std::string &name);

    /// Puts a file of `content` into the private folder as `name`, which is returned.
    std::string addFile(const std::string &name, const std::string &content);

    /// The file that the tool has to write in the private folder.
    static constexpr const char *resultName = "result.pdf";

    /// Where the tool has to work.
    const PrivateFolder &folder() const { return m_folder; }

    /// Runs `spec` in the private folder and delivers what it has made. Throws ToolError when the
    /// tool cannot be started.
    Outcome run(ChildSpec spec);

    /// How a child has ended, in words that name the user's files.
    Outcome outcomeOf(const ChildResult &result) const;

    /// What is wrong with the PDF `name` that a tool which reported success should have left in the
    /// folder: status 0 for nothing.
    Outcome check(const std::string &name) const;

    /// Moves the result over the target; a failure when it is no whole PDF.
    Outcome deliver() const;

private:
    std::string makeKnown(const std::string &origin, const std::string &name);
    std::string linkElsewhere(const std::string &origin, const std::string &name);
    void copy(const std::string &origin, const std::string &name) const;
    FileDescriptor open(const std::string &name) const;

    Target m_target;
    PrivateFolder m_folder;
    /// Places for links that have not been tried yet, beginning with that of m_elsewhere.
    std::vector<std::string> m_places;
    std::optional<PrivateFolder> m_elsewhere;
    Replacements m_originalNames;
};

/// Throws ToolError, naming `path`, unless a regular file that may be read is there. Opening
/// anything else could wait for ever (FIFO) or read without end (device).
void requireRegularFile(const std::string &path);
