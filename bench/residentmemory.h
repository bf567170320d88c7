#pragma once

#include <fstream>

#include <unistd.h>

/// Memory of this program that is resident now, in MiB.
inline double residentMemory()
{
    std::ifstream file("/proc/self/statm");
    double total = 0;
    double resident = 0;
    file >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}
