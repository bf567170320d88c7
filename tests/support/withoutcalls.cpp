// Runs a program whose kernel refuses some system calls:
//
//   withoutcalls symlinks|links|landlock|sandbox PROGRAM [ARGUMENT...]
//
// symlinks and links: as in a file system that knows no symbolic links, or none at all. landlock:
// as in a kernel without Landlock. sandbox: as in a container that offers neither Landlock nor
// seccomp.

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <string_view>
#include <vector>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr sock_filter loadNumber = {BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(seccomp_data, nr)};
constexpr sock_filter allow = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW};
constexpr sock_filter refusal = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | EPERM};

constexpr sock_filter unlessCall(unsigned number)
{
    return {BPF_JMP | BPF_JEQ | BPF_K, 0, 1, number};
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

bool refuse(const std::vector<unsigned> &calls)
{
    std::vector<sock_filter> rules = {loadNumber};
    for (const unsigned call : calls)
        rules.insert(rules.end(), {unlessCall(call), refusal});
    rules.push_back(allow);
    const sock_fprog program = {static_cast<unsigned short>(rules.size()), rules.data()};
    return !calls.empty() && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3 || !refuse(callsNamed(argv[1]))) {
        perror("withoutcalls");
        return 126;
    }
    execv(argv[2], argv + 2);
    perror(argv[2]);
    return 127;
}
