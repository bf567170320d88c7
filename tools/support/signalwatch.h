#pragma once

#include <chrono>
#include <thread>

class WorkDirectory;

/// While it lives, a signal that is held back (see holdSignals()) or the end of the time ends this
/// process, whatever it is busy with: `folder` is removed, one sentence written, the status is 1.
class SignalWatch
{
public:
    SignalWatch(const WorkDirectory &folder, std::chrono::seconds time);
    SignalWatch(const SignalWatch &) = delete;
    SignalWatch &operator=(const SignalWatch &) = delete;
    ~SignalWatch();

private:
    std::jthread m_thread;
};
