#include "hardening.h"

#include "error.h"
#include "subprocess.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t forUserAlone = 077;

mode_t maskAtStart = 022;

void openStandardStreams()
{
    int stream = 0;
    while (stream >= 0 && stream <= STDERR_FILENO)
        stream = open("/dev/null", O_RDWR);
    if (stream < 0)
        throw systemError("cannot open", "/dev/null");
    close(stream);
}

// The window raises the limit for long command lines; a real tool gets Linux's usual one.
void lowerStackLimit()
{
    constexpr rlim_t usual = rlim_t(8) * 1024 * 1024;
    rlimit stack = {};
    if (getrlimit(RLIMIT_STACK, &stack) == 0 && stack.rlim_cur > usual) {
        stack.rlim_cur = usual;
        setrlimit(RLIMIT_STACK, &stack);
    }
}

// What we work on is named by descriptor.
void requireProc()
{
    if (access("/proc/self/fd", X_OK) != 0)
        throw systemError("cannot work without", "/proc");
}

} // namespace

// Linux takes a limit of one byte as "never", for dumps to a file and to a program alike; a limit
// of zero does not concern a program that collects dumps.
void forbidCoreDumps()
{
    prctl(PR_SET_DUMPABLE, 0);
    const rlimit never = {1, 1};
    const rlimit zero = {0, 0};
    if (setrlimit(RLIMIT_CORE, &never) != 0)
        setrlimit(RLIMIT_CORE, &zero);
}

void prepareProcess()
{
    requireProc();
    close_range(STDERR_FILENO + 1, ~0U, 0);
    openStandardStreams();
    lowerStackLimit();
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    maskAtStart = umask(forUserAlone);
    holdSignals();
}

mode_t userMask()
{
    return maskAtStart;
}
