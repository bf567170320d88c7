#pragma once

#include "filedescriptor.h"
#include "subprocess.h"

#include <array>
#include <optional>

#include <poll.h>
#include <sys/types.h>

/// One child that has been started, for a loop of poll(): runSubprocess() or SubprocessPool.
class Subprocess
{
public:
    using Clock = std::chrono::steady_clock;

    /// Throws ToolError when it cannot be started.
    explicit Subprocess(SubprocessSpec spec);
    Subprocess(const Subprocess &) = delete;
    Subprocess &operator=(const Subprocess &) = delete;

    /// Its streams that end here, to be watched; step() takes them back with what poll() has seen.
    std::array<pollfd, 2> watched() const;
    void step(const std::array<pollfd, 2> &seen);
    /// When step() has to be called at the latest.
    std::optional<Clock::time_point> nextDeadline() const
    {
        return m_killAt ? m_killAt : m_deadline;
    }

    /// Sends `signal`, and SIGKILL some seconds after the first one sent.
    void endAfter(int signal);
    /// True once it has ended; result() is then complete.
    bool reap();
    SubprocessResult &result() { return m_result; }

private:
    struct Pipe
    {
        FileDescriptor readEnd, writeEnd;
    };
    // A captured stream and what is kept of it.
    struct Stream
    {
        FileDescriptor end;
        std::string *kept;
        void readSome();
    };

    static Pipe makePipe();
    void start();
    [[noreturn]] void becomeChild(pid_t parent, char **arguments, char **environment);
    void connectStreams();
    void send(int signal) const;
    void enforceTime();
    void drain();

    SubprocessSpec m_spec;
    SubprocessResult m_result;
    Pipe m_inputPipe, m_outputPipe, m_errorPipe;
    Stream m_output{FileDescriptor(), &m_result.output};
    Stream m_errors{FileDescriptor(), &m_result.errors};
    pid_t m_child = -1;
    FileDescriptor m_descriptor;
    std::optional<Clock::time_point> m_deadline, m_killAt;
};
