// Preloaded into a program, does once what TESSARO_FAULTINJECTION says: "full" makes the first
// write of a large piece of data fail as on a full disk; "signal" ends the program politely
// (SIGTERM) at that write; any other value is a file that changes when it is read first.

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string wish()
{
    const char *wanted = std::getenv("TESSARO_FAULTINJECTION");
    return wanted ? wanted : "";
}

bool isOpenAs(int file, const std::string &path)
{
    struct stat opened = {}, named = {};
    return fstat(file, &opened) == 0 && stat(path.c_str(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

} // namespace

extern "C" ssize_t write(int file, const void *data, size_t size)
{
    constexpr size_t large = size_t(64) * 1024;
    static const auto real = reinterpret_cast<decltype(&write)>(dlsym(RTLD_NEXT, "write"));
    const std::string wanted = size < large ? "" : wish();
    if (wanted == "full") {
        unsetenv("TESSARO_FAULTINJECTION");
        errno = ENOSPC;
        return -1;
    }
    if (wanted == "signal") {
        unsetenv("TESSARO_FAULTINJECTION");
        kill(getpid(), SIGTERM);
    }
    return real(file, data, size);
}

extern "C" ssize_t pread(int file, void *data, size_t size, off_t offset)
{
    static const auto real = reinterpret_cast<decltype(&pread)>(dlsym(RTLD_NEXT, "pread"));
    const std::string changing = wish();
    if (isOpenAs(file, changing)) {
        unsetenv("TESSARO_FAULTINJECTION");
        const timespec times[] = {{0, UTIME_OMIT}, {1, 0}};
        utimensat(AT_FDCWD, changing.c_str(), times, 0);
    }
    return real(file, data, size, offset);
}
