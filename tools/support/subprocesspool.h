#pragma once

#include "filedescriptor.h"
#include "subprocess.h"

#include <memory>
#include <vector>

class Subprocess;

/// Children at work side by side. `endingSignals` are passed on to all of them.
class SubprocessPool
{
public:
    struct Ended
    {
        size_t number;
        SubprocessResult result;
    };

    SubprocessPool();
    SubprocessPool(const SubprocessPool &) = delete;
    SubprocessPool &operator=(const SubprocessPool &) = delete;
    /// Ends those at work, by SIGTERM first and SIGKILL some seconds later, and then at once what
    /// any of them has left behind.
    ~SubprocessPool();

    /// Throws ToolError when the child cannot be started.
    void start(SubprocessSpec spec, size_t number);
    size_t atWork() const { return m_children.size(); }
    /// Waits for the end of one of those at work; `number` is what it was started with.
    Ended wait();
    /// The last signal that has asked for an end, or 0; looks for one that nobody has taken yet.
    int askedToEnd();
    /// Throws ToolError when there is one.
    void requireNoSignal();

    /// What holdSignals() blocks.
    static sigset_t heldSignals();

private:
    struct Member
    {
        size_t number;
        std::unique_ptr<Subprocess> child;
    };

    void step();
    int waitingTime() const;
    void takeSignals();
    void endAll(int signal);

    FileDescriptor m_signals;
    std::vector<Member> m_children;
    int m_signal = 0;
};
