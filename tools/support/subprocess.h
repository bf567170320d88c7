#pragma once

#include "sandbox.h"

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <sys/resource.h>

struct ResourceLimit
{
    __rlimit_resource resource;
    rlim_t value;
};

/// How to start a real tool.
struct SubprocessSpec
{
    /// The program's path and its arguments.
    std::vector<std::string> command;
    /// Instead of a program: what a copy of this process does before it exits with what comes back.
    std::function<int()> task;
    /// The whole environment, as "NAME=value".
    std::vector<std::string> environment;
    /// Descriptor of the folder to work in; -1 stays in ours.
    int folder = -1;
    /// What the child's new files are not allowed: for the user alone, as they may be private.
    mode_t mask = 077;
    /// Sent to the child by the kernel when this process dies, however it dies.
    int signalOnOurDeath = SIGKILL;
    /// The child is ended when it has taken longer; zero is no limit.
    std::chrono::seconds deadline{0};
    std::vector<ResourceLimit> limits;
    std::optional<Sandbox> sandbox;
};

struct SubprocessResult
{
    /// The status from waitpid.
    int waitStatus = 0;
    bool timedOut = false;
    /// The beginnings (up to a quarter MiB) of what the child wrote.
    std::string output;
    std::string errors;

    bool succeeded() const { return waitStatus == 0; }
    /// The child's own exit status; 1 for one that was ended by a signal.
    int exitStatus() const;
    /// The errors, and what ended a child that did not end by itself.
    std::string explainedErrors() const;
};

/// Signals that others send to end a program. Without an answer of ours to one of them its private
/// folder would be left behind.
inline constexpr std::array endingSignals = {SIGTERM, SIGINT,  SIGHUP, SIGQUIT,
                                             SIGALRM, SIGUSR1, SIGUSR2};

/// From now on SIGCHLD and `endingSignals` wait for whoever runs a child. All but SIGTERM that this
/// process was told to ignore, by nohup perhaps, stay ignored by it and by its children.
void holdSignals();

/// Runs the child to its end, passing those signals on to it; one that has not ended some seconds
/// after the first of them is killed. Throws ToolError when it cannot be started.
SubprocessResult runSubprocess(const SubprocessSpec &spec);
