#pragma once

#include <sys/stat.h>

/// Tells a file, and one state of its content, from others.
struct FileStamp
{
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    time_t seconds = 0;
    long nanoseconds = 0;

    bool operator==(const FileStamp &other) const
    {
        return device == other.device && inode == other.inode && size == other.size &&
               seconds == other.seconds && nanoseconds == other.nanoseconds;
    }
};

/// Of an open file.
inline FileStamp fileStamp(int file)
{
    struct stat status = {};
    fstat(file, &status);
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}
