#include "subprocesspool.h"

#include "error.h"
#include "subprocessrun.h"
#include "text.h"

#include <algorithm>

#include <poll.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool isIgnored(int signal)
{
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

// Ends what children have left behind; a sandbox refuses that, and leaves it to the process
// outside.
void endOrphans()
{
    const std::string list = "/proc/self/task/" + std::to_string(getpid()) + "/children";
    while (std::optional<std::string> orphans = readFile(list)) {
        replaceAll(*orphans, " ", "\n");
        for (const std::string &orphan : linesOf(*orphans)) {
            if (kill(std::stoi(orphan), SIGKILL) != 0)
                return;
        }
        if (waitpid(-1, nullptr, 0) < 0)
            return;
    }
}

} // namespace

SubprocessPool::SubprocessPool()
{
    const sigset_t held = heldSignals();
    m_signals = FileDescriptor(signalfd(-1, &held, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!m_signals.valid())
        throw systemError("cannot wait for", "the tool");
}

SubprocessPool::~SubprocessPool()
{
    endAll(SIGTERM);
    while (!m_children.empty())
        wait();
    endOrphans();
}

sigset_t SubprocessPool::heldSignals()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGCHLD);
    for (const int signal : endingSignals) {
        if (!isIgnored(signal))
            sigaddset(&set, signal);
    }
    return set;
}

void SubprocessPool::start(SubprocessSpec spec, size_t number)
{
    m_children.push_back({number, std::make_unique<Subprocess>(std::move(spec))});
}

SubprocessPool::Ended SubprocessPool::wait()
{
    while (true) {
        const auto ended = std::find_if(m_children.begin(), m_children.end(),
                                        [](const Member &member) { return member.child->reap(); });
        if (ended != m_children.end()) {
            Ended result = {ended->number, std::move(ended->child->result())};
            m_children.erase(ended);
            return result;
        }
        step();
    }
}

int SubprocessPool::askedToEnd()
{
    takeSignals();
    return m_signal;
}

void SubprocessPool::requireNoSignal()
{
    if (const int signal = askedToEnd())
        throw ToolError({1, "", "ended by signal " + std::to_string(signal) + "\n"});
}

void SubprocessPool::step()
{
    std::vector<pollfd> watched = {{m_signals.get(), POLLIN, 0}};
    for (const Member &member : m_children) {
        for (const pollfd &stream : member.child->watched())
            watched.push_back(stream);
    }
    poll(watched.data(), watched.size(), waitingTime());
    takeSignals();
    auto seen = watched.begin() + 1;
    for (const Member &member : m_children) {
        member.child->step({seen[0], seen[1]});
        seen += 2;
    }
}

int SubprocessPool::waitingTime() const
{
    using Clock = Subprocess::Clock;
    auto next = Clock::time_point::max();
    for (const Member &member : m_children)
        next = std::min(next, member.child->nextDeadline().value_or(next));
    if (next == Clock::time_point::max())
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now());
    return static_cast<int>(std::clamp<long>(left.count(), 0, 3'600'000));
}

// SIGCHLD only wakes: several ends may share one.
void SubprocessPool::takeSignals()
{
    signalfd_siginfo information = {};
    while (read(m_signals.get(), &information, sizeof information) > 0) {
        const int signal = static_cast<int>(information.ssi_signo);
        if (signal == SIGCHLD)
            continue;
        m_signal = signal;
        endAll(signal);
    }
}

void SubprocessPool::endAll(int signal)
{
    for (const Member &member : m_children)
        member.child->endAfter(signal);
}
