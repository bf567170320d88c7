#pragma once

#include "child.h"

#include <chrono>
#include <string>
#include <vector>

/// What one run of ImageMagick may use of this machine.
struct ConvertLimits
{
    unsigned long long memory;
    unsigned long long disk;
    std::chrono::seconds time;
    int threads;
};

/// Limits for `inputs` images of `bytes` in all, on a machine with `ram` bytes of memory and
/// `freeDisk` bytes to spare for pixels. Pure, so that tests can be other machines.
ConvertLimits limitsFor(size_t inputs, unsigned long long bytes, unsigned long long ram,
                        unsigned long long freeDisk);

/// The folder for pixels that do not fit into memory: the first of TMPDIR, /var/tmp and /tmp that
/// can be written in and is not kept in memory itself; when all are, the first of them.
std::string pixelFolder();

unsigned long long freeBytesIn(const std::string &folder);
unsigned long long machineMemory();

/// The limits as ImageMagick reads them from its environment.
std::vector<std::string> limitVariables(const ConvertLimits &limits);

/// What the kernel enforces beside that: the memory that decoders take for themselves.
std::vector<ResourceLimit> kernelLimits(const ConvertLimits &limits);
