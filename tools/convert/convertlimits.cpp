#include "convertlimits.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <linux/magic.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

constexpr unsigned long long mebibyte = 1024ULL * 1024;
constexpr unsigned long long gibibyte = 1024 * mebibyte;

// Two fifths of a 4 GiB machine leave room for the window, the desktop and the PDF being written;
// on larger ones pixels go to disk as late as the bound of 4 GiB for the whole run lets them.
constexpr unsigned long long mostPixelMemory = 13 * gibibyte / 4;
constexpr unsigned long long memoryBesidePixels = 5 * gibibyte / 8;

constexpr std::chrono::seconds timeForFirst{45};
constexpr std::chrono::seconds timeForEachFurther{30};

// Below this size of input files a second thread costs more to start than it saves.
constexpr unsigned long long smallInput = 64ULL * 1024;

bool isInMemory(const std::string &folder)
{
    struct statfs status = {};
    return statfs(folder.c_str(), &status) == 0 &&
           (status.f_type == TMPFS_MAGIC || status.f_type == RAMFS_MAGIC);
}

} // namespace

ConvertLimits limitsFor(size_t inputs, unsigned long long bytes, unsigned long long ram,
                        unsigned long long freeDisk)
{
    const auto further = static_cast<int>(std::max<size_t>(inputs, 1) - 1);
    return {std::min(ram / 5 * 2, mostPixelMemory), freeDisk / 4 * 3,
            timeForFirst + further * timeForEachFurther, bytes < smallInput ? 1 : 0};
}

std::string pixelFolder()
{
    const char *wished = getenv("TMPDIR");
    const std::array<std::string, 3> folders = {wished ? wished : "", "/var/tmp", "/tmp"};
    const auto isUsable = [](const std::string &folder) {
        return folder.starts_with('/') && access(folder.c_str(), W_OK | X_OK) == 0;
    };
    const auto isOnDisk = [&isUsable](const std::string &folder) {
        return isUsable(folder) && !isInMemory(folder);
    };
    const auto *folder = std::find_if(folders.begin(), folders.end(), isOnDisk);
    if (folder == folders.end())
        folder = std::find_if(folders.begin(), folders.end(), isUsable);
    return folder == folders.end() ? "/tmp" : *folder;
}

unsigned long long freeBytesIn(const std::string &folder)
{
    struct statvfs status = {};
    return statvfs(folder.c_str(), &status) == 0 ? status.f_bavail * status.f_frsize : 0;
}

unsigned long long machineMemory()
{
    return static_cast<unsigned long long>(sysconf(_SC_PHYS_PAGES)) *
           static_cast<unsigned long long>(sysconf(_SC_PAGESIZE));
}

std::vector<std::string> limitVariables(const ConvertLimits &limits)
{
    // No "map": a mapped file's pages count as the process's memory, one that is read and written
    // does not keep them.
    std::vector<std::string> variables = {
        "MAGICK_MEMORY_LIMIT=" + std::to_string(limits.memory / mebibyte) + "MiB",
        "MAGICK_MAP_LIMIT=0",
        "MAGICK_DISK_LIMIT=" + std::to_string(limits.disk / mebibyte) + "MiB",
        "MAGICK_TIME_LIMIT=" + std::to_string(limits.time.count()),
    };
    if (limits.threads > 0)
        variables.push_back("MAGICK_THREAD_LIMIT=" + std::to_string(limits.threads));
    return variables;
}

std::vector<ResourceLimit> kernelLimits(const ConvertLimits &limits)
{
    return {{RLIMIT_DATA, limits.memory + memoryBesidePixels}, {RLIMIT_CORE, 0}};
}
