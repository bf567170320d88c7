// Preloaded into a program, does once what TESSARO_FAULTINJECTION says: "full" makes the first
// write of a large piece of data fail as on a full disk; "signal" ends the program politely
// (SIGTERM) at that write, or with status 99 when it goes on to write ten more; any other value is
// a file that changes when it is read first.

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <string>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

// Both are taken when the program starts: inside its sandbox there is neither.
std::string fault = variable("TESSARO_FAULTINJECTION");
const int changingFile = open(fault.c_str(), O_RDWR);

bool isSame(int first, int second)
{
    struct stat one = {}, other = {};
    return fstat(first, &one) == 0 && fstat(second, &other) == 0 && one.st_ino == other.st_ino &&
           one.st_dev == other.st_dev;
}

// By a timer, as a sandbox lets no process send one.
void signalItself()
{
    sigevent event = {};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGTERM;
    timer_t timer = {};
    const itimerspec soon = {{0, 0}, {0, 1}};
    timer_create(CLOCK_MONOTONIC, &event, &timer);
    timer_settime(timer, 0, &soon, nullptr);
    sigset_t pending;
    do {
        sigpending(&pending);
    } while (!sigismember(&pending, SIGTERM));
}

} // namespace

extern "C" ssize_t write(int file, const void *data, size_t size)
{
    constexpr size_t large = size_t(64) * 1024;
    static const auto real = reinterpret_cast<decltype(&write)>(dlsym(RTLD_NEXT, "write"));
    const std::string wanted = size < large ? "" : std::exchange(fault, "");
    if (wanted == "full") {
        errno = ENOSPC;
        return -1;
    }
    static int writesLeft = -1;
    if (size >= large && writesLeft > 0 && --writesLeft == 0)
        _exit(99);
    if (wanted == "signal") {
        signalItself();
        writesLeft = 10;
    }
    return real(file, data, size);
}

extern "C" ssize_t pread(int file, void *data, size_t size, off_t offset)
{
    static const auto real = reinterpret_cast<decltype(&pread)>(dlsym(RTLD_NEXT, "pread"));
    // The same byte again: it is the time of change that is another one.
    if (char byte = 0;
        !fault.empty() && isSame(file, changingFile) && real(changingFile, &byte, 1, 0) == 1) {
        fault.clear();
        [[maybe_unused]] const ssize_t count = pwrite(changingFile, &byte, 1, 0);
    }
    return real(file, data, size, offset);
}

// Would close that file.
extern "C" int close_range(unsigned, unsigned, int) noexcept
{
    return 0;
}
