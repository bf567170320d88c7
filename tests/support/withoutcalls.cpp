// Runs a program whose kernel refuses some system calls:
//
//   withoutcalls symlinks|links|locks|landlock|sandbox PROGRAM [ARGUMENT...]
//
// symlinks, links and locks: as in a file system that knows no symbolic links, no links at all, or
// no record locks. landlock: as in a kernel without Landlock. sandbox: as in a container that
// offers neither Landlock nor seccomp.

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr sock_filter load(size_t offset)
{
    return {BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<unsigned>(offset)};
}

constexpr sock_filter loadNumber = load(offsetof(seccomp_data, nr));
constexpr sock_filter loadSecondArgument = load(offsetof(seccomp_data, args) + sizeof(__u64));
constexpr sock_filter allow = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW};
constexpr sock_filter refusal = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | EPERM};

// Passes over the next `count` rules unless the loaded value is this one.
constexpr sock_filter unless(unsigned value, __u8 count)
{
    return {BPF_JMP | BPF_JEQ | BPF_K, 0, count, value};
}

#ifdef SYS_symlink
constexpr unsigned oldSymlink = SYS_symlink;
#else // newer architectures have the other call alone
constexpr unsigned oldSymlink = SYS_symlinkat;
#endif

// Nothing for an unknown word.
std::vector<unsigned> callsNamed(std::string_view word)
{
    if (word == "symlinks")
        return {SYS_symlinkat, oldSymlink};
    if (word == "links")
        return {SYS_symlinkat, SYS_linkat};
    if (word == "landlock")
        return {SYS_landlock_create_ruleset};
    if (word == "sandbox")
        return {SYS_landlock_create_ruleset, SYS_seccomp};
    return {};
}

std::vector<sock_filter> rulesNamed(std::string_view word)
{
    if (word == "locks")
        return {unless(SYS_fcntl, 3), loadSecondArgument, unless(F_SETLK, 1), refusal};
    std::vector<sock_filter> rules;
    for (const unsigned call : callsNamed(word))
        rules.insert(rules.end(), {unless(call, 1), refusal});
    return rules;
}

bool refuse(std::vector<sock_filter> rules)
{
    if (rules.empty())
        return false;
    rules.insert(rules.begin(), loadNumber);
    rules.push_back(allow);
    const sock_fprog program = {static_cast<unsigned short>(rules.size()), rules.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3 || !refuse(rulesNamed(argv[1]))) {
        perror("withoutcalls");
        return 126;
    }
    execv(argv[2], argv + 2);
    perror(argv[2]);
    return 127;
}
