#pragma once

#include "error.h"

#include <string>

#include <sys/stat.h>

/// Identifies a file and one state of its content.
struct FileIdentity
{
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    time_t seconds = 0;
    long nanoseconds = 0;

    bool operator==(const FileIdentity &other) const
    {
        return device == other.device && inode == other.inode && size == other.size &&
               seconds == other.seconds && nanoseconds == other.nanoseconds;
    }
};

/// Of the open `file` at `path`. Throws ToolError.
inline FileIdentity identityOf(int file, const std::string &path)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        throw systemError("cannot read", path);
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

/// Throws ToolError unless the open `file` at `path` is still what `identity` says.
inline void requireUnchanged(int file, const std::string &path, const FileIdentity &identity)
{
    if (!(identityOf(file, path) == identity))
        throw ToolError("'" + path + "' was changed meanwhile");
}
