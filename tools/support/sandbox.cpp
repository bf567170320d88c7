#include "sandbox.h"

#include "error.h"
#include "filedescriptor.h"
#include "refusedcalls.h"
#include "sandboxsupport.h"
#include "text.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <fcntl.h>
#include <gnu/lib-names.h>
#include <linux/fs.h>
#include <linux/landlock.h>
#include <linux/sockios.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// What every process inside may use: the C library, its loader and locales, and what decoders look
// for (ImageMagick's configuration, the number of cores).
const std::vector<FileRule> systemFiles = {
    {"/lib", Access::Read},
    {"/lib64", Access::Read},
    {"/lib/" LD_SO, Access::Execute},
    {"/lib64/" LD_SO, Access::Execute},
    {"/usr/lib", Access::Read},
    {"/usr/lib64", Access::Read},
    {"/usr/local/lib", Access::Read},
    {"/usr/share", Access::Read},
    {"/etc/ld.so.cache", Access::Read},
    {"/etc/localtime", Access::Read},
    {"/etc/ImageMagick-6", Access::Read},
    {"/etc/ImageMagick-7", Access::Read},
    {"/sys/devices/system/cpu", Access::Read},
    {"/sys/devices/system/node", Access::Read},
    {"/dev/null", Access::Write},
    {"/dev/urandom", Access::Read},
};

// Rights and scopes by the version ("ABI") of Landlock that brought them; Debian 12's header ends
// at 2.
struct LandlockStep
{
    int abi;
    std::uint64_t files, network, scopes;
};

constexpr std::uint64_t truncateRight = 1U << 14U;
constexpr std::uint64_t deviceIoctlRight = 1U << 15U;

constexpr auto landlockSteps = std::to_array<LandlockStep>({
    {1, LANDLOCK_ACCESS_FS_REFER - 1, 0, 0},
    {2, LANDLOCK_ACCESS_FS_REFER, 0, 0},
    {3, truncateRight, 0, 0},
    // TCP: binding and connecting.
    {4, 0, 3, 0},
    {5, deviceIoctlRight, 0, 0},
    // Abstract Unix sockets, and signals.
    {6, 0, 0, 3},
});

constexpr std::uint64_t readRights = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t writeRights = readRights | LANDLOCK_ACCESS_FS_WRITE_FILE | truncateRight |
                                      LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_REMOVE_FILE;
// For the folders and links that other processes are given.
constexpr std::uint64_t preparingRights =
    LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_MAKE_SYM;
constexpr std::uint64_t rightsOnOneFile = LANDLOCK_ACCESS_FS_EXECUTE |
                                          LANDLOCK_ACCESS_FS_READ_FILE |
                                          LANDLOCK_ACCESS_FS_WRITE_FILE | truncateRight;

std::uint64_t rightsFor(Access access)
{
    switch (access) {
    case Access::Read:
        return readRights;
    case Access::Execute:
        return readRights | LANDLOCK_ACCESS_FS_EXECUTE;
    case Access::Write:
        break;
    }
    return writeRights;
}

// As Linux declares it from 6.12 on; older ones take it as long as what they do not know is 0.
struct RulesetAttributes
{
    std::uint64_t files, network, scopes;
};

class Ruleset
{
public:
    explicit Ruleset(int abi)
    {
        for (const LandlockStep &step : landlockSteps) {
            if (step.abi <= abi) {
                m_handled.files |= step.files;
                m_handled.network |= step.network;
                m_handled.scopes |= step.scopes;
            }
        }
        m_ruleset = FileDescriptor(static_cast<int>(
            syscall(SYS_landlock_create_ruleset, &m_handled, sizeof m_handled, 0)));
        require(m_ruleset.valid());
    }

    void allow(const FileRule &rule, std::uint64_t moreRights = 0)
    {
        const FileDescriptor file(open(rule.path.c_str(), O_PATH | O_CLOEXEC));
        struct stat status = {};
        if (!file.valid() || fstat(file.get(), &status) != 0)
            return;
        landlock_path_beneath_attr attributes = {};
        attributes.parent_fd = file.get();
        attributes.allowed_access = (rightsFor(rule.access) | moreRights) & m_handled.files;
        if (!S_ISDIR(status.st_mode))
            attributes.allowed_access &= rightsOnOneFile;
        require(syscall(SYS_landlock_add_rule, m_ruleset.get(), LANDLOCK_RULE_PATH_BENEATH,
                        &attributes, 0) == 0);
    }

    void enforce() const { require(syscall(SYS_landlock_restrict_self, m_ruleset.get(), 0) == 0); }

private:
    static void require(bool done)
    {
        if (!done)
            throw systemError("cannot set up", "the sandbox");
    }

    RulesetAttributes m_handled = {};
    FileDescriptor m_ruleset;
};

void restrictFiles(const Sandbox &sandbox, int abi)
{
    Ruleset ruleset(abi);
    for (const FileRule &rule : systemFiles)
        ruleset.allow(rule);
    for (const FileRule &rule : sandbox.files) {
        const bool prepares = sandbox.startsProcesses && rule.access == Access::Write;
        ruleset.allow(rule, prepares ? preparingRights : 0);
    }
    ruleset.enforce();
}

/// A filter of system calls: all are allowed that are not refused.
class CallFilter
{
public:
    CallFilter()
        : m_filter(seccomp_init(SCMP_ACT_ALLOW))
    {
        require(m_filter ? 0 : -ENOMEM);
        // A tree, of which the kernel has less to look at for each call than of a list.
        constexpr int tree = 2;
        require(seccomp_attr_set(m_filter.get(), SCMP_FLTATR_CTL_OPTIMIZE, tree));
    }

    // One that this machine's kind does not have is left out by libseccomp.
    void refuse(int call, int error = EPERM)
    {
        require(seccomp_rule_add(m_filter.get(), SCMP_ACT_ERRNO(static_cast<unsigned>(error)), call,
                                 0));
    }
    void refuse(const RefusedArgument &refused)
    {
        require(seccomp_rule_add_array(m_filter.get(), SCMP_ACT_ERRNO(EPERM), refused.call, 1,
                                       &refused.argument));
    }

    void enforce() { require(seccomp_load(m_filter.get())); }

private:
    struct Release
    {
        void operator()(void *filter) const { seccomp_release(filter); }
    };

    static void require(int result)
    {
        errno = -result;
        if (result < 0)
            throw systemError("cannot set up", "the sandbox");
    }

    std::unique_ptr<void, Release> m_filter;
};

void restrictCalls(const Sandbox &sandbox)
{
    // The filter of the first sandbox stays in force inside the second.
    static bool isInside = false;
    const auto ownProcess = static_cast<scmp_datum_t>(getpid());
    CallFilter filter;
    if (!isInside) {
        for (const int call : refusedCalls)
            filter.refuse(call);
        for (const int number : refusedNumbers)
            filter.refuse(number, ENOSYS);
        for (const int call : unseenCalls)
            filter.refuse(call, ENOSYS);
        for (const RefusedArgument &refused : refusedArguments)
            filter.refuse(refused);
        // Landlock refuses signals from ABI 6 on.
        filter.refuse({SCMP_SYS(kill), {0, SCMP_CMP_NE, ownProcess, 0}});
    }
    isInside = true;
    if (!sandbox.startsProcesses) {
        for (const int call : startingCalls)
            filter.refuse(call);
        // What is left: threads, and signals to itself.
        filter.refuse({SCMP_SYS(tgkill), {0, SCMP_CMP_NE, ownProcess, 0}});
        filter.refuse({SCMP_SYS(clone), bits(0, CLONE_THREAD, 0)});
    }
    filter.enforce();
}

// The loader takes a folder that is not absolute as one in the current folder: not here.
std::vector<std::string> libraryPath()
{
    const char *variable = getenv("LD_LIBRARY_PATH");
    std::string folders = variable ? variable : "";
    replaceAll(folders, ":", "\n");
    std::vector<std::string> result = linesOf(folders);
    std::erase_if(result, [](const std::string &folder) { return !folder.starts_with('/'); });
    return result;
}

std::string withoutLinks(const std::string &path)
{
    const std::unique_ptr<char, decltype(&free)> resolved(realpath(path.c_str(), nullptr), free);
    return resolved ? resolved.get() : path;
}

} // namespace

std::vector<FileRule> rulesToRun(const std::string &program)
{
    std::vector<FileRule> rules = {{program, Access::Execute}};
    for (const std::string &folder : libraryPath())
        rules.push_back({folder, Access::Read});
    const std::string prefix = folderOf(folderOf(withoutLinks(program)));
    // Of the system's own folders what is needed is in the table.
    if (prefix == "/" || prefix == "/usr")
        return rules;
    // Not all of "share" and "etc": below ~/.local they are full of the user's data.
    for (const char *beside : {"/lib", "/etc/ImageMagick-6", "/etc/ImageMagick-7",
                               "/share/ImageMagick-6", "/share/ImageMagick-7"})
        rules.push_back({prefix + beside, Access::Read});
    return rules;
}

void enterSandbox(const Sandbox &sandbox)
{
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        throw systemError("cannot set up", "the sandbox");
    if (const int abi = landlockAbi(); abi > 0)
        restrictFiles(sandbox, abi);
    if (hasSeccomp())
        restrictCalls(sandbox);
}
