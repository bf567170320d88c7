#include "convertlimits.h"

#include "workdirectory.h"

#include <algorithm>
#include <cstdlib>

#include <linux/magic.h>
#include <sched.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

constexpr unsigned long long mebibyte = 1024ULL * 1024;
constexpr unsigned long long gibibyte = 1024 * mebibyte;

// Two fifths of a 4 GiB machine leave room for the window, the desktop and the PDF being written;
// on larger ones pixels go to disk as late as the bound of 4 GiB for the whole call lets them.
constexpr unsigned long long maxPixelMemory = 13 * gibibyte / 4;
constexpr unsigned long long maxBesidePixels = 5 * gibibyte / 8;

// With less for each of several runs, usual scans and photos would go to disk: 24 megapixels take
// 183 MiB, twice that while they are turned.
constexpr unsigned long long minForOneOfSeveral = 768 * mebibyte;

// A4 pages in colour at 300 dots per inch take five seconds at worst (-monochrome).
constexpr std::chrono::seconds timeForFirst{100};
constexpr std::chrono::seconds timeForEachFurther{30};
// A GIF file can claim a frame with twelve bytes; each run of a TIFF file makes few pages.
constexpr size_t maxFurther = 120;

// Below this size of an input file a second thread costs more to start than it saves.
constexpr unsigned long long smallInput = 64ULL * 1024;

unsigned long long pixelMemory(unsigned long long ram)
{
    return std::min(ram / 5 * 2, maxPixelMemory);
}

bool isInMemory(const std::string &folder)
{
    struct statfs status = {};
    return statfs(folder.c_str(), &status) == 0 &&
           (status.f_type == TMPFS_MAGIC || status.f_type == RAMFS_MAGIC);
}

} // namespace

ConvertLimits limitsFor(const Workload &work, unsigned long long ram, unsigned long long freeDisk)
{
    const unsigned long long share = (pixelMemory(ram) + maxBesidePixels) / work.concurrency;
    const unsigned long long beside = std::min(maxBesidePixels, share / 2);
    const auto further =
        static_cast<int>(std::min(work.pages - std::min<size_t>(work.pages, 1), maxFurther));
    // Two runs with two threads each are slower than one after the other.
    const bool oneThread = work.concurrency > 1 || work.bytes < smallInput;
    return {share - beside, beside, freeDisk / 4 * 3 / work.concurrency,
            timeForFirst + further * timeForEachFurther, oneThread ? 1 : 0};
}

size_t maxConcurrency(size_t cores, unsigned long long ram)
{
    const unsigned long long fitting = (pixelMemory(ram) + maxBesidePixels) / minForOneOfSeveral;
    return std::clamp<size_t>(fitting, 1, std::max<size_t>(cores, 1));
}

std::vector<std::string> pixelFolders(const std::string &lastResort)
{
    std::vector<std::string> folders = temporaryFolders();
    std::stable_partition(folders.begin(), folders.end(),
                          [](const std::string &folder) { return !isInMemory(folder); });
    folders.push_back(lastResort);
    return folders;
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

size_t machineCores()
{
    cpu_set_t cores;
    return sched_getaffinity(0, sizeof cores, &cores) == 0 ? static_cast<size_t>(CPU_COUNT(&cores))
                                                           : 1;
}

std::vector<std::string> limitVariables(const ConvertLimits &limits)
{
    // No "map": the pages of a mapped file count as the process's memory, those of a file that is
    // read and written do not.
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
    return {{RLIMIT_DATA, limits.memory + limits.memoryBesidePixels}};
}
