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
inline constexpr auto refusedCalls = std::to_array<int>({
    // Networks, the desktop, other programs' sockets.
    SCMP_SYS(socket),
    SCMP_SYS(socketpair),
    SCMP_SYS(connect),
    SCMP_SYS(bind),
    SCMP_SYS(listen),
    SCMP_SYS(accept),
    SCMP_SYS(accept4),
    SCMP_SYS(sendto),
    SCMP_SYS(sendmsg),
    SCMP_SYS(sendmmsg),
    SCMP_SYS(recvfrom),
    SCMP_SYS(recvmsg),
    SCMP_SYS(recvmmsg),
    // Other processes.
    SCMP_SYS(ptrace),
    SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev),
    SCMP_SYS(process_madvise),
    SCMP_SYS(process_mrelease),
    SCMP_SYS(kcmp),
    SCMP_SYS(pidfd_open),
    SCMP_SYS(pidfd_getfd),
    SCMP_SYS(rt_sigqueueinfo),
    SCMP_SYS(rt_tgsigqueueinfo),
    SCMP_SYS(tkill),
    SCMP_SYS(perf_event_open),
    SCMP_SYS(setpriority),
    SCMP_SYS(ioprio_set),
    SCMP_SYS(sched_setaffinity),
    SCMP_SYS(sched_setattr),
    SCMP_SYS(sched_setparam),
    SCMP_SYS(sched_setscheduler),
    SCMP_SYS(migrate_pages),
    SCMP_SYS(move_pages),
    // Memory and messages shared with other processes.
    SCMP_SYS(shmget),
    SCMP_SYS(shmat),
    SCMP_SYS(shmctl),
    SCMP_SYS(semget),
    SCMP_SYS(semop),
    SCMP_SYS(semtimedop),
    SCMP_SYS(semctl),
    SCMP_SYS(msgget),
    SCMP_SYS(msgsnd),
    SCMP_SYS(msgrcv),
    SCMP_SYS(msgctl),
    SCMP_SYS(mq_open),
    SCMP_SYS(mq_unlink),
    // Programs that no file holds.
    SCMP_SYS(memfd_create),
    SCMP_SYS(memfd_secret),
    SCMP_SYS(execveat),
    // Attributes of files, and watching them: Landlock leaves them open.
    SCMP_SYS(chmod),
    SCMP_SYS(fchmod),
    SCMP_SYS(fchmodat),
    SCMP_SYS(chown),
    SCMP_SYS(fchown),
    SCMP_SYS(lchown),
    SCMP_SYS(fchownat),
    SCMP_SYS(utime),
    SCMP_SYS(utimes),
    SCMP_SYS(futimesat),
    SCMP_SYS(utimensat),
    SCMP_SYS(setxattr),
    SCMP_SYS(lsetxattr),
    SCMP_SYS(fsetxattr),
    SCMP_SYS(removexattr),
    SCMP_SYS(lremovexattr),
    SCMP_SYS(fremovexattr),
    SCMP_SYS(getxattr),
    SCMP_SYS(lgetxattr),
    SCMP_SYS(listxattr),
    SCMP_SYS(llistxattr),
    SCMP_SYS(truncate),
    SCMP_SYS(inotify_init),
    SCMP_SYS(inotify_init1),
    SCMP_SYS(inotify_add_watch),
    SCMP_SYS(fanotify_init),
    SCMP_SYS(fanotify_mark),
    // Mounts and namespaces.
    SCMP_SYS(mount),
    SCMP_SYS(umount),
    SCMP_SYS(umount2),
    SCMP_SYS(pivot_root),
    SCMP_SYS(chroot),
    SCMP_SYS(move_mount),
    SCMP_SYS(open_tree),
    SCMP_SYS(fsopen),
    SCMP_SYS(fsconfig),
    SCMP_SYS(fsmount),
    SCMP_SYS(fspick),
    SCMP_SYS(mount_setattr),
    SCMP_SYS(unshare),
    SCMP_SYS(setns),
    SCMP_SYS(open_by_handle_at),
    // Wide doors into the kernel.
    SCMP_SYS(io_uring_setup),
    SCMP_SYS(io_uring_enter),
    SCMP_SYS(io_uring_register),
    SCMP_SYS(bpf),
    SCMP_SYS(userfaultfd),
    SCMP_SYS(keyctl),
    SCMP_SYS(add_key),
    SCMP_SYS(request_key),
    SCMP_SYS(init_module),
    SCMP_SYS(finit_module),
    SCMP_SYS(delete_module),
    SCMP_SYS(kexec_load),
    SCMP_SYS(kexec_file_load),
    SCMP_SYS(iopl),
    SCMP_SYS(ioperm),
    SCMP_SYS(reboot),
    SCMP_SYS(swapon),
    SCMP_SYS(swapoff),
    SCMP_SYS(acct),
    SCMP_SYS(quotactl),
    SCMP_SYS(syslog),
    SCMP_SYS(settimeofday),
    SCMP_SYS(clock_settime),
    SCMP_SYS(clock_adjtime),
    SCMP_SYS(adjtimex),
    SCMP_SYS(sethostname),
    SCMP_SYS(setdomainname),
});

// The same, known to Linux by numbers only where libseccomp is 2.5 (Debian 12): fchmodat2,
// setxattrat, getxattrat, listxattrat, removexattrat, open_tree_attr, file_getattr, file_setattr.
inline constexpr auto refusedNumbers = std::to_array<int>({452, 463, 464, 465, 466, 467, 468, 469});

// Their arguments lie in memory, where no filter sees them. Callers use older calls instead.
inline constexpr auto unseenCalls = std::to_array<int>({SCMP_SYS(clone3), SCMP_SYS(openat2)});

// What only those need that start other processes.
inline constexpr auto startingCalls =
    std::to_array<int>({SCMP_SYS(fork), SCMP_SYS(vfork), SCMP_SYS(pidfd_send_signal)});

struct RefusedArgument
{
    int call;
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
    {SCMP_SYS(open), bits(1, O_ACCMODE | O_TRUNC, O_TRUNC)},
    {SCMP_SYS(open), bits(1, O_ACCMODE, O_ACCMODE)},
    {SCMP_SYS(openat), bits(2, O_ACCMODE | O_TRUNC, O_TRUNC)},
    {SCMP_SYS(openat), bits(2, O_ACCMODE, O_ACCMODE)},
    // Typing into a terminal.
    {SCMP_SYS(ioctl), number(1, TIOCSTI)},
    {SCMP_SYS(ioctl), number(1, TIOCLINUX)},
    // Attributes of files.
    {SCMP_SYS(ioctl), number(1, FS_IOC_SETFLAGS)},
    {SCMP_SYS(ioctl), number(1, FS_IOC_FSSETXATTR)},
    // Signals by way of a file.
    {SCMP_SYS(ioctl), number(1, FIOSETOWN)},
    {SCMP_SYS(fcntl), number(1, F_SETOWN)},
    {SCMP_SYS(fcntl), number(1, F_SETOWN_EX)},
    // Limits of other processes.
    {SCMP_SYS(prlimit64), {0, SCMP_CMP_NE, 0, 0}},
    {SCMP_SYS(clone), bits(0, CLONE_NEWUSER, CLONE_NEWUSER)},
    {SCMP_SYS(clone), bits(0, CLONE_NEWNS, CLONE_NEWNS)},
    {SCMP_SYS(clone), bits(0, CLONE_NEWPID, CLONE_NEWPID)},
    {SCMP_SYS(clone), bits(0, CLONE_NEWNET, CLONE_NEWNET)},
    {SCMP_SYS(clone), bits(0, CLONE_NEWIPC, CLONE_NEWIPC)},
    {SCMP_SYS(clone), bits(0, CLONE_NEWUTS, CLONE_NEWUTS)},
    {SCMP_SYS(clone), bits(0, CLONE_NEWCGROUP, CLONE_NEWCGROUP)},
    {SCMP_SYS(clone), bits(0, newTimeNamespace, newTimeNamespace)},
});
