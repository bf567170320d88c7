#pragma once

// The tables of the sandbox: which system calls it refuses, and which only with some arguments.

#include <array>

#include <fcntl.h>
#include <linux/fs.h>
#include <linux/sockios.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>

// System calls that nobody inside needs, by what they would reach.
inline constexpr auto refusedCalls = std::to_array<const char *>({
    // Networks, the desktop, other programs' sockets.
    "socket",
    "socketpair",
    "connect",
    "bind",
    "listen",
    "accept",
    "accept4",
    "sendto",
    "sendmsg",
    "sendmmsg",
    "recvfrom",
    "recvmsg",
    "recvmmsg",
    // Other processes.
    "ptrace",
    "process_vm_readv",
    "process_vm_writev",
    "process_madvise",
    "process_mrelease",
    "kcmp",
    "pidfd_open",
    "pidfd_getfd",
    "rt_sigqueueinfo",
    "rt_tgsigqueueinfo",
    "tkill",
    "perf_event_open",
    "setpriority",
    "ioprio_set",
    "sched_setaffinity",
    "sched_setattr",
    "sched_setparam",
    "sched_setscheduler",
    "migrate_pages",
    "move_pages",
    // Memory and messages shared with other processes.
    "shmget",
    "shmat",
    "shmctl",
    "semget",
    "semop",
    "semtimedop",
    "semctl",
    "msgget",
    "msgsnd",
    "msgrcv",
    "msgctl",
    "mq_open",
    "mq_unlink",
    // Programs that no file holds.
    "memfd_create",
    "memfd_secret",
    "execveat",
    // Attributes of files, and watching them: Landlock leaves them open.
    "chmod",
    "fchmod",
    "fchmodat",
    "chown",
    "fchown",
    "lchown",
    "fchownat",
    "utime",
    "utimes",
    "futimesat",
    "utimensat",
    "setxattr",
    "lsetxattr",
    "fsetxattr",
    "removexattr",
    "lremovexattr",
    "fremovexattr",
    "getxattr",
    "lgetxattr",
    "listxattr",
    "llistxattr",
    "truncate",
    "inotify_init",
    "inotify_init1",
    "inotify_add_watch",
    "fanotify_init",
    "fanotify_mark",
    // Mounts and namespaces.
    "mount",
    "umount",
    "umount2",
    "pivot_root",
    "chroot",
    "move_mount",
    "open_tree",
    "fsopen",
    "fsconfig",
    "fsmount",
    "fspick",
    "mount_setattr",
    "unshare",
    "setns",
    "open_by_handle_at",
    // Wide doors into the kernel.
    "io_uring_setup",
    "io_uring_enter",
    "io_uring_register",
    "bpf",
    "userfaultfd",
    "keyctl",
    "add_key",
    "request_key",
    "init_module",
    "finit_module",
    "delete_module",
    "kexec_load",
    "kexec_file_load",
    "iopl",
    "ioperm",
    "reboot",
    "swapon",
    "swapoff",
    "acct",
    "quotactl",
    "syslog",
    "settimeofday",
    "clock_settime",
    "clock_adjtime",
    "adjtimex",
    "sethostname",
    "setdomainname",
});

// The same, known to Linux by numbers only where libseccomp is 2.5 (Debian 12): fchmodat2,
// setxattrat, getxattrat, listxattrat, removexattrat, open_tree_attr, file_getattr, file_setattr.
inline constexpr auto refusedNumbers = std::to_array<int>({452, 463, 464, 465, 466, 467, 468, 469});

// Their arguments lie in memory, where no filter sees them. Callers use older calls instead.
inline constexpr auto unseenCalls = std::to_array<const char *>({"clone3", "openat2"});

// What only those need that start other processes.
inline constexpr auto startingCalls =
    std::to_array<const char *>({"fork", "vfork", "pidfd_send_signal"});

struct RefusedArgument
{
    const char *call;
    scmp_arg_cmp argument;
};

// An argument of which the bits in `mask` are `value`.
constexpr scmp_arg_cmp bits(unsigned argument, scmp_datum_t mask, scmp_datum_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

constexpr scmp_arg_cmp number(unsigned argument, scmp_datum_t value)
{
    return bits(argument, 0xFFFF'FFFF, value);
}

inline constexpr scmp_datum_t newTimeNamespace = 0x80;

inline const auto refusedArguments = std::to_array<RefusedArgument>({
    // Reading rights suffice for these to cut a file off (Landlock before ABI 3) or to reach a
    // device.
    {"open", bits(1, O_ACCMODE | O_TRUNC, O_TRUNC)},
    {"open", bits(1, O_ACCMODE, O_ACCMODE)},
    {"openat", bits(2, O_ACCMODE | O_TRUNC, O_TRUNC)},
    {"openat", bits(2, O_ACCMODE, O_ACCMODE)},
    // Typing into a terminal.
    {"ioctl", number(1, TIOCSTI)},
    {"ioctl", number(1, TIOCLINUX)},
    // Attributes of files.
    {"ioctl", number(1, FS_IOC_SETFLAGS)},
    {"ioctl", number(1, FS_IOC_FSSETXATTR)},
    // Signals by way of a file.
    {"ioctl", number(1, FIOSETOWN)},
    {"fcntl", number(1, F_SETOWN)},
    {"fcntl", number(1, F_SETOWN_EX)},
    // Limits of other processes.
    {"prlimit64", {0, SCMP_CMP_NE, 0, 0}},
    {"clone", bits(0, CLONE_NEWUSER, CLONE_NEWUSER)},
    {"clone", bits(0, CLONE_NEWNS, CLONE_NEWNS)},
    {"clone", bits(0, CLONE_NEWPID, CLONE_NEWPID)},
    {"clone", bits(0, CLONE_NEWNET, CLONE_NEWNET)},
    {"clone", bits(0, CLONE_NEWIPC, CLONE_NEWIPC)},
    {"clone", bits(0, CLONE_NEWUTS, CLONE_NEWUTS)},
    {"clone", bits(0, CLONE_NEWCGROUP, CLONE_NEWCGROUP)},
    {"clone", bits(0, newTimeNamespace, newTimeNamespace)},
});
