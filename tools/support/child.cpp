#include "child.h"

#include "childpool.h"

#include <sys/wait.h>

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
    const sigset_t held = ChildPool::heldSignals();
    sigprocmask(SIG_BLOCK, &held, nullptr);
}

ChildResult runChild(const ChildSpec &spec)
{
    ChildPool pool;
    pool.start(spec, 0);
    return pool.wait().result;
}
