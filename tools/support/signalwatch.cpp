#include "signalwatch.h"

#include "filedescriptor.h"
#include "subprocesspool.h"
#include "workdirectory.h"

#include <cerrno>
#include <string>

#include <pthread.h>
#include <unistd.h>

namespace {

[[noreturn]] void end(const WorkDirectory &folder, const std::string &reason)
{
    folder.remove();
    writeAll(STDERR_FILENO, reason + "\n");
    _exit(1);
}

} // namespace

SignalWatch::SignalWatch(const WorkDirectory &folder, std::chrono::seconds time)
    : m_thread([&folder, time](const std::stop_token &stop) {
        const sigset_t signals = ChildPool::heldSignals();
        const timespec limit = {time.count(), 0};
        int signal = 0;
        do {
            signal = sigtimedwait(&signals, nullptr, &limit);
        } while (!stop.stop_requested() && (signal == SIGCHLD || (signal < 0 && errno == EINTR)));
        if (stop.stop_requested())
            return;
        end(folder,
            signal < 0 ? "gave up: it took too long" : "ended by signal " + std::to_string(signal));
    })
{
}

SignalWatch::~SignalWatch()
{
    m_thread.request_stop();
    pthread_kill(m_thread.native_handle(), SIGCHLD);
}
