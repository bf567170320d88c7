#include "subprocess.h"

#include "subprocesspool.h"

#include <sys/wait.h>

int SubprocessResult::exitStatus() const
{
    if (succeeded())
        return 0;
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : 1;
}

std::string SubprocessResult::explainedErrors() const
{
    if (timedOut)
        return errors + "gave up: it took too long\n";
    if (WIFSIGNALED(waitStatus))
        return errors + "ended by signal " + std::to_string(WTERMSIG(waitStatus)) + "\n";
    return errors;
}

void holdSignals()
{
    // A caller that ignores these would hide the child's end, or keep it from ending with us.
    signal(SIGCHLD, SIG_DFL);
    signal(SIGTERM, SIG_DFL);
    // A reader that has gone would end us with work left behind.
    signal(SIGPIPE, SIG_IGN);
    // So would a file larger than the caller allows; writing it fails instead.
    signal(SIGXFSZ, SIG_IGN);
    const sigset_t held = SubprocessPool::heldSignals();
    sigprocmask(SIG_BLOCK, &held, nullptr);
}

SubprocessResult runSubprocess(const SubprocessSpec &spec)
{
    SubprocessPool pool;
    pool.start(spec, 0);
    return pool.wait().result;
}
