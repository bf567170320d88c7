#pragma once

#include "subprocess.h"

#include <chrono>
#include <string>
#include <vector>

/// One run of ImageMagick among those of a call.
struct Workload
{
    /// Runs at the same time.
    size_t concurrency = 1;
    /// Pages that this one makes.
    size_t pages = 1;
    /// Of its image file.
    unsigned long long bytes = 0;
};

/// What one run of ImageMagick may use of this machine.
struct ConvertLimits
{
    unsigned long long memory;
    unsigned long long memoryBesidePixels;
    unsigned long long disk;
    std::chrono::seconds time;
    int threads;
};

/// Limits for `work`, on a machine with `ram` bytes of memory and `freeDisk` bytes to spare for
/// pixels. Pure, so that tests can simulate other machines.
ConvertLimits limitsFor(const Workload &work, unsigned long long ram, unsigned long long freeDisk);

/// How many runs may be at work at the same time on a machine with `cores` and `ram`.
size_t maxConcurrency(size_t cores, unsigned long long ram);

/// Folders for pixels that do not fit into memory, the best one first: those for temporary files,
/// and in front of the others those that are not kept in memory themselves; last `lastResort`.
std::vector<std::string> pixelFolders(const std::string &lastResort);

unsigned long long freeBytesIn(const std::string &folder);
unsigned long long machineMemory();
/// Those that this process may use.
size_t machineCores();

/// The limits as ImageMagick reads them from its environment.
std::vector<std::string> limitVariables(const ConvertLimits &limits);

/// What the kernel enforces besides: the memory that decoders take for themselves.
std::vector<ResourceLimit> kernelLimits(const ConvertLimits &limits);
