#include "sandboxsupport.h"

#include <cerrno>
#include <cstdint>
#include <cstring>

#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

int landlockAbi()
{
    return static_cast<int>(
        syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
}

bool hasSeccomp()
{
    const std::uint32_t action = SECCOMP_RET_ERRNO;
    return syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0;
}

bool isSandboxComplete()
{
    return landlockAbi() > 0 && hasSeccomp();
}

std::string describeSandbox()
{
    const int abi = landlockAbi();
    const std::string noLandlock = std::string("Landlock: ") + strerror(errno);
    const bool seccomp = hasSeccomp();
    const std::string noSeccomp = std::string("seccomp: ") + strerror(errno);
    if (abi <= 0 && !seccomp)
        return "none (" + noLandlock + "; " + noSeccomp + ")";
    const std::string landlock = abi > 0 ? "Landlock ABI " + std::to_string(abi) : "";
    return landlock + (abi > 0 && seccomp ? ", " : "") + (seccomp ? "seccomp" : "");
}
