#include "child.h"

#include "diagnosis.h"
#include "filedescriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t mostKept = 256UL * 1024;
constexpr std::chrono::seconds graceAfterSignal{3};
// What a shell reports for a program that cannot be executed.
constexpr int cannotExecute = 127;

sigset_t heldSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGCHLD})
        sigaddset(&set, signal);
    return set;
}

struct Pipe
{
    FileDescriptor readEnd, writeEnd;
};

Pipe makePipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw systemError("cannot make a pipe for", "the tool");
    return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

std::vector<char *> pointersTo(const std::vector<std::string> &words)
{
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (const std::string &word : words)
        pointers.push_back(const_cast<char *>(word.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

// A captured stream: what is kept of it, and where its prompts are looked for.
struct Stream
{
    FileDescriptor end;
    std::string *kept;

    void readSome()
    {
        std::array<char, 16384> buffer{};
        const ssize_t count = read(end.get(), buffer.data(), buffer.size());
        if (count > 0) {
            const size_t room = mostKept - std::min(mostKept, kept->size());
            kept->append(buffer.data(), std::min(room, static_cast<size_t>(count)));
        } else if (count == 0 || errno != EAGAIN) {
            end.close();
        }
    }
};

class Run
{
public:
    explicit Run(const ChildSpec &spec);
    ChildResult finish();

private:
    void start();
    [[noreturn]] void becomeChild(pid_t parent, char **arguments, char **environment);
    void connectStreams();
    void step();
    int waitingTime() const;
    void takeSignals();
    void answer();
    void endAfter(int signal);
    void enforceTime();
    void drain();

    const ChildSpec &m_spec;
    ChildResult m_result;
    FileDescriptor m_signals;
    Pipe m_inputPipe, m_outputPipe, m_errorPipe;
    Stream m_output{FileDescriptor(), &m_result.output};
    Stream m_errors{FileDescriptor(), &m_result.errors};
    std::vector<Prompt> m_unanswered;
    size_t m_searched = 0;
    pid_t m_child = -1;
    bool m_running = true;
    std::optional<Clock::time_point> m_deadline, m_killAt;
};

Run::Run(const ChildSpec &spec)
    : m_spec(spec)
    , m_unanswered(spec.prompts)
{
    const sigset_t held = heldSignals();
    m_signals = FileDescriptor(signalfd(-1, &held, SFD_CLOEXEC | SFD_NONBLOCK));
    if (spec.deadline.count() > 0)
        m_deadline = Clock::now() + spec.deadline;
    start();
}

void Run::start()
{
    if (m_spec.capture == Capture::Everything) {
        m_inputPipe = makePipe();
        m_outputPipe = makePipe();
    }
    if (m_spec.capture != Capture::Nothing)
        m_errorPipe = makePipe();
    std::vector<char *> arguments = pointersTo(m_spec.command);
    std::vector<char *> environment = pointersTo(m_spec.environment);
    const pid_t parent = getpid();
    m_child = fork();
    if (m_child < 0)
        throw systemError("cannot start", m_spec.command.front());
    if (m_child == 0)
        becomeChild(parent, arguments.data(), environment.data());
    m_inputPipe.readEnd.close();
    m_outputPipe.writeEnd.close();
    m_errorPipe.writeEnd.close();
    m_output.end = std::move(m_outputPipe.readEnd);
    m_errors.end = std::move(m_errorPipe.readEnd);
    for (const Stream *stream : {&m_output, &m_errors})
        fcntl(stream->end.get(), F_SETFL, O_NONBLOCK);
    if (m_unanswered.empty())
        m_inputPipe.writeEnd.close();
}

void Run::becomeChild(pid_t parent, char **arguments, char **environment)
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
    for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGPIPE})
        signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    if (m_spec.folder < 0 || fchdir(m_spec.folder) == 0)
        execve(arguments[0], arguments, environment);
    const std::string message =
        systemError("cannot start", arguments[0]).what() + std::string("\n");
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, message.data(), message.size());
    _exit(cannotExecute);
}

void Run::connectStreams()
{
    // dup2 refuses the -1 of a pipe that was not made, which leaves that stream as it is.
    dup2(m_inputPipe.readEnd.get(), STDIN_FILENO);
    dup2(m_outputPipe.writeEnd.get(), STDOUT_FILENO);
    dup2(m_errorPipe.writeEnd.get(), STDERR_FILENO);
}

ChildResult Run::finish()
{
    while (m_running)
        step();
    drain();
    return std::move(m_result);
}

void Run::step()
{
    std::array<pollfd, 3> watched = {{{m_signals.get(), POLLIN, 0},
                                      {m_output.end.get(), POLLIN, 0},
                                      {m_errors.end.get(), POLLIN, 0}}};
    poll(watched.data(), watched.size(), waitingTime());
    if (watched[1].revents != 0) {
        m_output.readSome();
        answer();
    }
    if (watched[2].revents != 0)
        m_errors.readSome();
    if (watched[0].revents != 0)
        takeSignals();
    enforceTime();
}

int Run::waitingTime() const
{
    const std::optional<Clock::time_point> &next = m_killAt ? m_killAt : m_deadline;
    if (!next)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
    return static_cast<int>(std::clamp<long>(left.count(), 0, 3'600'000));
}

void Run::takeSignals()
{
    signalfd_siginfo information = {};
    while (read(m_signals.get(), &information, sizeof information) > 0) {
        const int signal = static_cast<int>(information.ssi_signo);
        if (signal != SIGCHLD)
            endAfter(signal);
        else if (waitpid(m_child, &m_result.waitStatus, WNOHANG) == m_child)
            m_running = false;
    }
}

// pdftk-java 3.3.2 asks for one password after the other, and crashes on a second answer that is
// there before its question; so each waits for its own.
void Run::answer()
{
    while (!m_unanswered.empty()) {
        const auto asked = [this](const Prompt &prompt) {
            return m_result.output.find(prompt.question, m_searched) != std::string::npos;
        };
        const auto prompt = std::find_if(m_unanswered.begin(), m_unanswered.end(), asked);
        if (prompt == m_unanswered.end())
            return;
        m_searched = m_result.output.find(prompt->question, m_searched) + prompt->question.size();
        const std::string line = prompt->answer + "\n";
        [[maybe_unused]] const ssize_t written =
            write(m_inputPipe.writeEnd.get(), line.data(), line.size());
        m_unanswered.erase(prompt);
    }
    m_inputPipe.writeEnd.close();
}

void Run::endAfter(int signal)
{
    if (m_running)
        kill(m_child, signal);
    m_killAt = Clock::now() + graceAfterSignal;
}

void Run::enforceTime()
{
    const Clock::time_point now = Clock::now();
    if (m_running && m_killAt && now >= *m_killAt) {
        kill(m_child, SIGKILL);
        m_killAt = now + graceAfterSignal;
    }
    if (m_running && !m_killAt && m_deadline && now >= *m_deadline) {
        m_result.timedOut = true;
        endAfter(SIGTERM);
    }
}

void Run::drain()
{
    for (Stream *stream : {&m_output, &m_errors}) {
        pollfd watched = {stream->end.get(), POLLIN, 0};
        while (stream->end.valid() && poll(&watched, 1, 0) > 0)
            stream->readSome();
    }
}

} // namespace

int ChildResult::exitStatus() const
{
    if (succeeded())
        return 0;
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 1;
}

void holdSignals()
{
    // A caller that ignores these would hide the child's end, or end us with a half-written
    // message.
    signal(SIGCHLD, SIG_DFL);
    signal(SIGPIPE, SIG_IGN);
    const sigset_t held = heldSignals();
    sigprocmask(SIG_BLOCK, &held, nullptr);
}

ChildResult runChild(const ChildSpec &spec)
{
    return Run(spec).finish();
}
