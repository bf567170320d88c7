// Preloaded into a program, meddles as TESSARO_FAULTINJECTION says: "full" makes the first write of
// a large piece of data fail as on a full disk; any other value is a file that changes whenever a
// large piece of data is read.

#include <cerrno>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What is to be done at a transfer of so many bytes, if anything.
std::string wish(size_t size)
{
    constexpr size_t large = size_t(64) * 1024;
    const char *wanted = size < large ? nullptr : std::getenv("TESSARO_FAULTINJECTION");
    return wanted ? wanted : "";
}

} // namespace

extern "C" ssize_t write(int file, const void *data, size_t size)
{
    static const auto real = reinterpret_cast<decltype(&write)>(dlsym(RTLD_NEXT, "write"));
    if (wish(size) != "full")
        return real(file, data, size);
    unsetenv("TESSARO_FAULTINJECTION");
    errno = ENOSPC;
    return -1;
}

extern "C" ssize_t pread(int file, void *data, size_t size, off_t offset)
{
    static const auto real = reinterpret_cast<decltype(&pread)>(dlsym(RTLD_NEXT, "pread"));
    const std::string changing = wish(size);
    if (!changing.empty() && changing != "full") {
        static time_t second = 0;
        const timespec times[] = {{0, UTIME_OMIT}, {++second, 0}};
        utimensat(AT_FDCWD, changing.c_str(), times, 0);
    }
    return real(file, data, size, offset);
}
