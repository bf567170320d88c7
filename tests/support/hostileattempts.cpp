#include "hostileattempts.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string_view>

#include <arpa/inet.h>
#include <dirent.h>
#include <fcntl.h>
#include <linux/keyctl.h>
#include <linux/netlink.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

using Path = const char *;

bool done(long result)
{
    return result >= 0;
}

bool readsFrom(int file)
{
    char byte = 0;
    return file >= 0 && read(file, &byte, 1) == 1;
}

// Its number may belong to another file by now.
bool readsSecret(int descriptor)
{
    std::string content(6, '\0');
    return read(descriptor, content.data(), content.size()) > 0 && content == "secret";
}

bool reads(Path path)
{
    return readsFrom(open(path, O_RDONLY));
}

bool writes(Path path)
{
    const int file = open(path, O_WRONLY | O_CREAT, 0600);
    return file >= 0 && write(file, "x", 1) == 1;
}

bool lists(Path folder)
{
    DIR *directory = opendir(folder);
    return directory && readdir(directory);
}

bool cutsOffWhatItReads(Path path)
{
    return done(open(path, O_RDONLY | O_TRUNC));
}

// In a process of its own where that can be had; else the one that asks is replaced, and silent.
bool executes(const std::function<void()> &execute)
{
    constexpr int refused = 77;
    const pid_t child = fork();
    if (child < 0) {
        execute();
        return false;
    }
    if (child == 0) {
        execute();
        _exit(refused);
    }
    int status = 0;
    waitpid(child, &status, 0);
    errno = EACCES;
    return !WIFEXITED(status) || WEXITSTATUS(status) != refused;
}

bool executesFile(Path path, Path argument = nullptr)
{
    return executes([=] { execl(path, path, argument, nullptr); });
}

bool executesCopyOfItself()
{
    const int self = open("/proc/self/exe", O_RDONLY);
    const int copy = open("copy", O_WRONLY | O_CREAT | O_TRUNC, 0700);
    std::array<char, 65536> buffer{};
    for (ssize_t count = 0; (count = read(self, buffer.data(), buffer.size())) > 0;)
        [[maybe_unused]] const ssize_t written =
            write(copy, buffer.data(), static_cast<size_t>(count));
    close(copy);
    return executesFile("./copy");
}

bool executesMemory()
{
    const int memory = memfd_create("x", 0);
    if (memory < 0 || write(memory, "#!/bin/true\n", 12) != 12)
        return false;
    return executes([memory] {
        char name[] = "x";
        std::array<char *, 2> arguments = {name, nullptr};
        syscall(SYS_execveat, memory, "", arguments.data(), environ, AT_EMPTY_PATH);
    });
}

bool startsProcess()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    return child > 0 && waitpid(child, nullptr, 0) == child;
}

sockaddr_in local(const char *port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(std::atoi(port)));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

bool connectsTo(int type, const char *port)
{
    const int socketOf = socket(AF_INET, type, 0);
    const sockaddr_in address = local(port);
    return socketOf >= 0 &&
           connect(socketOf, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 &&
           write(socketOf, "x", 1) == 1;
}

// An abstract name begins with "@", as tools show it.
bool connectsToUnix(const char *name)
{
    const int socketOf = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, name, sizeof address.sun_path - 1);
    if (*name == '@')
        address.sun_path[0] = '\0';
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + std::strlen(name) +
                                               (*name == '@' ? 0 : 1));
    return socketOf >= 0 &&
           connect(socketOf, reinterpret_cast<const sockaddr *>(&address), length) == 0;
}

bool traces(pid_t process)
{
    const bool traced = done(ptrace(PTRACE_SEIZE, process, nullptr, nullptr));
    if (traced) {
        ptrace(PTRACE_INTERRUPT, process, nullptr, nullptr);
        waitpid(process, nullptr, __WALL);
        ptrace(PTRACE_DETACH, process, nullptr, nullptr);
    }
    return traced;
}

bool readsMemoryOf(pid_t process)
{
    int local = 0;
    const iovec into = {&local, sizeof local};
    const iovec from = {&local, sizeof local};
    process_vm_readv(process, &into, 1, &from, 1, 0);
    // An address that is not mapped there is reached all the same.
    return errno == EFAULT;
}

// A descriptor that is no terminal shows that the call went through.
bool typesIntoTerminal()
{
    char letter = 'x';
    errno = 0;
    ioctl(STDIN_FILENO, TIOCSTI, &letter);
    return errno != EPERM;
}

bool entersNamespace(unsigned long kind)
{
    return executes([kind] {
        if (unshare(static_cast<int>(kind)) == 0)
            _exit(0);
    });
}

bool setsUpRing()
{
    std::array<std::uint32_t, 64> parameters{};
    return done(syscall(SYS_io_uring_setup, 1, parameters.data()));
}

std::string inFolder(const std::string &folder, const char *name)
{
    return folder + "/" + name;
}

struct Attempt
{
    const char *name;
    std::function<bool()> succeeds;
};

std::vector<Attempt> attempts(const Knowledge &k)
{
    const auto path = [&k](const char *name) { return k.at(name).c_str(); };
    const pid_t victim = std::atoi(path("victim"));
    const std::string home = k.at("home");
    return {
        {"read the user's key", [=] { return reads(path("key")); }},
        {"read /etc/passwd", [] { return reads("/etc/passwd"); }},
        {"read another input", [=] { return reads(path("other-input")); }},
        {"read the older PDF", [=] { return reads(path("output")); }},
        {"list the home", [=] { return lists(home.c_str()); }},
        {"list the output's folder", [=] { return lists(path("output-folder")); }},
        {"write into the home", [=] { return writes(inFolder(home, "new").c_str()); }},
        {"write beside the input", [=] { return writes((k.at("input") + ".new").c_str()); }},
        {"write over the input", [=] { return writes(path("input")); }},
        {"write over the output", [=] { return writes(path("output")); }},
        {"write into another private folder",
         [=] { return writes(inFolder(k.at("other-private"), "page-2").c_str()); }},
        {"cut the input off while reading it", [=] { return cutsOffWhatItReads(path("input")); }},
        {"cut the input off by its path", [=] { return done(truncate(path("input"), 0)); }},
        {"remove the user's file", [=] { return done(unlink(path("to-remove"))); }},
        {"rename the user's file",
         [=] { return done(rename(path("to-rename"), (k.at("to-rename") + "d").c_str())); }},
        {"move the user's file into the private folder",
         [=] { return done(rename(path("to-move"), "moved")); }},
        {"link the user's key into the private folder",
         [=] { return done(link(path("key"), "linked")); }},
        {"make a symbolic link in the home",
         [=] { return done(symlink("/", inFolder(home, "link").c_str())); }},
        {"make a folder", [] { return done(mkdir("made", 0700)); }},
        {"link a descriptor of the input into the private folder",
         [=] {
             const int file = open(path("input"), O_RDONLY);
             return done(linkat(AT_FDCWD, ("/proc/self/fd/" + std::to_string(file)).c_str(),
                                AT_FDCWD, "linked-input", AT_SYMLINK_FOLLOW));
         }},
        {"write over the input by its descriptor",
         [=] {
             const int file = open(path("input"), O_RDONLY);
             return done(open(("/proc/self/fd/" + std::to_string(file)).c_str(), O_WRONLY));
         }},
        {"make a FIFO", [] { return done(mkfifo("fifo", 0600)); }},
        {"read through a symbolic link",
         [=] {
             symlink(path("key"), "out");
             return reads("out");
         }},
        {"change the input's mode", [=] { return done(chmod(path("input"), 0644)); }},
        {"change the input's mode by a new call",
         [=] { return done(syscall(452, AT_FDCWD, path("input"), 0644, 0)); }},
        {"change the input's owner",
         [=] { return done(chown(path("input"), getuid(), getgid())); }},
        {"change the input's time",
         [=] { return done(utimensat(AT_FDCWD, path("input"), nullptr, 0)); }},
        {"list the attributes of the user's key",
         [=] { return done(listxattr(path("key"), nullptr, 0)); }},
        {"read an attribute of the user's key",
         [=] { return getxattr(path("key"), "user.x", nullptr, 0) >= 0 || errno == ENODATA; }},
        {"set an attribute of the input",
         [=] { return done(setxattr(path("input"), "user.x", "x", 1, 0)); }},
        {"watch the home",
         [=] { return done(inotify_add_watch(inotify_init(), home.c_str(), IN_ALL_EVENTS)); }},
        {"start a process", startsProcess},
        {"execute a shell", [] { return executesFile("/bin/sh"); }},
        {"execute another program", [] { return executesFile("/bin/cat", "--version"); }},
        {"execute a setuid program", [] { return executesFile("/bin/su", "--version"); }},
        {"gain rights by executing", [] { return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 0; }},
        {"execute a copy of itself", executesCopyOfItself},
        {"execute memory", executesMemory},
        {"connect by TCP", [=] { return connectsTo(SOCK_STREAM, path("tcp")); }},
        {"connect by UDP", [=] { return connectsTo(SOCK_DGRAM, path("udp")); }},
        {"connect to a Unix socket", [=] { return connectsToUnix(path("unix")); }},
        {"connect to an abstract Unix socket", [=] { return connectsToUnix(path("abstract")); }},
        {"open a netlink socket", [] { return done(socket(AF_NETLINK, SOCK_RAW, NETLINK_ROUTE)); }},
        {"signal another process", [=] { return done(kill(victim, SIGURG)); }},
        {"signal a thread of another process",
         [=] { return done(syscall(SYS_tgkill, victim, victim, SIGURG)); }},
        {"signal the caller's processes", [] { return done(kill(0, SIGURG)); }},
        {"signal by a descriptor", [=] { return done(syscall(SYS_pidfd_open, victim, 0)); }},
        {"trace another process", [=] { return traces(victim); }},
        {"read another process's memory", [=] { return readsMemoryOf(victim); }},
        {"open another process's memory",
         [=] {
             return reads(("/proc/" + k.at("victim") + "/cmdline").c_str()) &&
                    done(open(("/proc/" + k.at("victim") + "/mem").c_str(), O_RDONLY));
         }},
        {"read another process's environment",
         [=] { return reads(("/proc/" + k.at("victim") + "/environ").c_str()); }},
        {"list the mounts", [] { return reads("/proc/self/mountinfo"); }},
        {"list the network's connections", [] { return reads("/proc/self/net/unix"); }},
        {"list the processes", [] { return lists("/proc"); }},
        {"limit another process",
         [=] {
             rlimit limit = {};
             return done(prlimit(victim, RLIMIT_CORE, nullptr, &limit));
         }},
        {"slow another process down",
         [=] { return done(setpriority(PRIO_PROCESS, static_cast<id_t>(victim), 5)); }},
        {"read the caller's secret variable",
         [] {
             const char *secret = getenv("TESSARO_TEST_SECRET");
             return secret && *secret != '\0';
         }},
        {"read the caller's descriptor",
         [=] { return readsSecret(std::atoi(path("descriptor"))); }},
        {"type into a terminal", typesIntoTerminal},
        {"make shared memory", [] { return done(shmget(IPC_PRIVATE, 4096, 0600)); }},
        {"reach the keyring",
         [] {
             return done(syscall(SYS_keyctl, KEYCTL_GET_KEYRING_ID, KEY_SPEC_PROCESS_KEYRING, 1));
         }},
        {"set up io_uring", setsUpRing},
        {"enter a user namespace", [] { return entersNamespace(CLONE_NEWUSER); }},
        {"load a BPF program",
         [] {
             errno = 0;
             syscall(SYS_bpf, 0, nullptr, 0);
             return errno != EPERM;
         }},
    };
}

} // namespace

Knowledge knowledgeFrom(const std::vector<std::string> &lines)
{
    Knowledge knowledge;
    for (const std::string &line : lines) {
        if (const size_t sign = line.find('='); sign != std::string::npos)
            knowledge[line.substr(0, sign)] = line.substr(sign + 1);
    }
    return knowledge;
}

void tryEverything(const Knowledge &knowledge)
{
    const auto only = knowledge.find("only");
    for (const Attempt &attempt : attempts(knowledge)) {
        if (only != knowledge.end() && !std::string_view(attempt.name).starts_with(only->second))
            continue;
        errno = 0;
        const bool succeeded = attempt.succeeds();
        const std::string line =
            attempt.name + (succeeded ? std::string(": succeeded\n")
                                      : std::string(": refused (") + strerror(errno) + ")\n");
        [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
    }
}
