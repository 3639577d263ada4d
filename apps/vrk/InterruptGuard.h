#ifndef VRK_APPS_VRK_INTERRUPTGUARD_H
#define VRK_APPS_VRK_INTERRUPTGUARD_H

#include <csignal>

namespace VRK {
class Task;
}

// While it lives, SIGINT (Ctrl-C) cancels `task`: the handler only sets the task's
// cancel flag, and the run notices it at the next pass of a loop. A second SIGINT
// ends the process at once, as if no handler were installed. The previous handling
// comes back when the guard goes.
class InterruptGuard {
public:
    explicit InterruptGuard(VRK::Task& task);
    ~InterruptGuard();
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;

private:
    struct sigaction previous_;
};

#endif
