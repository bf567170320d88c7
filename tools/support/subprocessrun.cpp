#include "subprocessrun.h"

#include "error.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr size_t maxKept = 256UL * 1024;
constexpr std::chrono::seconds graceAfterSignal{3};
// What a shell reports for a program that cannot be executed.
constexpr int cannotExecute = 127;

std::vector<char *> pointersTo(const std::vector<std::string> &words)
{
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (const std::string &word : words)
        pointers.push_back(const_cast<char *>(word.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

// fork() that also makes a descriptor of the child, -1 before Linux 5.2: in a sandbox only one's
// own children can be signalled, by that.
pid_t forkWithDescriptor(int &descriptor)
{
    return static_cast<pid_t>(
        syscall(SYS_clone, CLONE_PIDFD | SIGCHLD, nullptr, &descriptor, 0, 0));
}

} // namespace

Subprocess::Subprocess(SubprocessSpec spec)
    : m_spec(std::move(spec))
{
    if (m_spec.deadline.count() > 0)
        m_deadline = Clock::now() + m_spec.deadline;
    start();
}

Subprocess::Pipe Subprocess::makePipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw systemError("cannot make a pipe for", "the tool");
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

void Subprocess::Stream::readSome()
{
    std::array<char, 16384> buffer{};
    const ssize_t count = read(end.get(), buffer.data(), buffer.size());
    if (count > 0) {
        const size_t room = maxKept - std::min(maxKept, kept->size());
        kept->append(buffer.data(), std::min(room, static_cast<size_t>(count)));
    } else if (count == 0 || errno != EAGAIN) {
        end.close();
    }
}

void Subprocess::start()
{
    m_inputPipe = makePipe();
    m_outputPipe = makePipe();
    m_errorPipe = makePipe();
    std::vector<char *> arguments = pointersTo(m_spec.command);
    std::vector<char *> environment = pointersTo(m_spec.environment);
    const pid_t parent = getpid();
    int descriptor = -1;
    m_child = forkWithDescriptor(descriptor);
    if (m_child < 0)
        throw systemError("cannot start",
                          m_spec.command.empty() ? "a process" : m_spec.command.front());
    if (m_child == 0)
        becomeChild(parent, arguments.data(), environment.data());
    m_descriptor = FileDescriptor(descriptor);
    m_inputPipe.readEnd.close();
    m_outputPipe.writeEnd.close();
    m_errorPipe.writeEnd.close();
    m_output.end = std::move(m_outputPipe.readEnd);
    m_errors.end = std::move(m_errorPipe.readEnd);
    for (const Stream *stream : {&m_output, &m_errors})
        fcntl(stream->end.get(), F_SETFL, O_NONBLOCK);
    m_inputPipe.writeEnd.close();
}

void Subprocess::becomeChild(pid_t parent, char **arguments, char **environment)
{
    prctl(PR_SET_PDEATHSIG, m_spec.signalOnOurDeath);
    // A parent that died before the line above will never be reported.
    if (getppid() != parent)
        _exit(cannotExecute);
    connectStreams();
    for (const ResourceLimit &limit : m_spec.limits) {
        const rlimit value = {limit.value, limit.value};
        setrlimit(limit.resource, &value);
    }
    umask(m_spec.mask);
    signal(SIGPIPE, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    try {
        if (m_spec.folder >= 0 && fchdir(m_spec.folder) != 0)
            throw systemError("cannot start", arguments[0]);
        if (m_spec.sandbox)
            enterSandbox(*m_spec.sandbox);
        if (m_spec.task)
            _exit(m_spec.task());
        execve(arguments[0], arguments, environment);
        throw systemError("cannot start", arguments[0]);
    } catch (const ToolError &error) {
        writeAll(STDERR_FILENO, error.what() + std::string("\n"));
    }
    _exit(m_spec.task ? EXIT_FAILURE : cannotExecute);
}

void Subprocess::connectStreams()
{
    dup2(m_inputPipe.readEnd.get(), STDIN_FILENO);
    dup2(m_outputPipe.writeEnd.get(), STDOUT_FILENO);
    dup2(m_errorPipe.writeEnd.get(), STDERR_FILENO);
}

std::array<pollfd, 2> Subprocess::watched() const
{
    return {{{m_output.end.get(), POLLIN, 0}, {m_errors.end.get(), POLLIN, 0}}};
}

void Subprocess::step(const std::array<pollfd, 2> &seen)
{
    if (seen[0].revents != 0)
        m_output.readSome();
    if (seen[1].revents != 0)
        m_errors.readSome();
    enforceTime();
}

void Subprocess::send(int signal) const
{
    if (syscall(SYS_pidfd_send_signal, m_descriptor.get(), signal, nullptr, 0) != 0)
        kill(m_child, signal);
}

void Subprocess::endAfter(int signal)
{
    send(signal);
    if (!m_killAt)
        m_killAt = Clock::now() + graceAfterSignal;
}

bool Subprocess::reap()
{
    if (waitpid(m_child, &m_result.waitStatus, WNOHANG) != m_child)
        return false;
    drain();
    return true;
}

void Subprocess::enforceTime()
{
    const Clock::time_point now = Clock::now();
    if (m_killAt && now >= *m_killAt) {
        send(SIGKILL);
        m_killAt = now + graceAfterSignal;
    }
    if (!m_killAt && m_deadline && now >= *m_deadline) {
        m_result.timedOut = true;
        endAfter(SIGTERM);
    }
}

void Subprocess::drain()
{
    // What fits into a pipe (64 KiB on Linux) four times over: a process that the child has left
    // behind could write for ever.
    constexpr int maxReads = 16;
    for (Stream *stream : {&m_output, &m_errors}) {
        pollfd watched = {stream->end.get(), POLLIN, 0};
        for (int i = 0; i < maxReads && stream->end.valid() && poll(&watched, 1, 0) > 0; ++i)
            stream->readSome();
    }
}
