// Runs a program in which making links fails, as in a file system that knows none:
//
//   withoutlinks symbolic|all PROGRAM [ARGUMENT...]
//
// The kernel refuses the calls, so that it works for a program with the C library inside too.

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
constexpr sock_filter refuse = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | EPERM};

constexpr sock_filter unlessCall(unsigned number)
{
    return {BPF_JMP | BPF_JEQ | BPF_K, 0, 1, number};
}

bool refuseLinks(bool hardOnesToo)
{
    std::vector<sock_filter> rules = {loadNumber, unlessCall(SYS_symlinkat), refuse};
    if (hardOnesToo)
        rules.insert(rules.end(), {unlessCall(SYS_linkat), refuse});
    rules.push_back(allow);
    const sock_fprog program = {static_cast<unsigned short>(rules.size()), rules.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3 || !refuseLinks(std::string_view(argv[1]) == "all")) {
        perror("withoutlinks");
        return 126;
    }
    execv(argv[2], argv + 2);
    perror(argv[2]);
    return 127;
}
