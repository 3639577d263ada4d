#ifndef VRK_APPS_VRK_INTERRUPTGUARD_H
#define VRK_APPS_VRK_INTERRUPTGUARD_H

#include <csignal>

namespace VRK {
class Task;
}

// While it lives, SIGINT (Ctrl-C) and SIGTERM stop the work under way. Without a task,
// a signal removes the temporary files of the writes under way and ends the process at
// once with status 128 + the signal's number (130, 143). With a task, the first signal
// only sets the task's cancel flag, and the run notices it at the next pass of a loop;
// a second signal ends the process as without a task. The previous handling comes back
// when the guard goes, so guards nest.
class InterruptGuard {
public:
    InterruptGuard();
    explicit InterruptGuard(VRK::Task& task);
    ~InterruptGuard();
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;

    // The status that a run cancelled by the guard's task ends with: 128 + the number of
    // the signal that cancelled it, 130 when none did.
    int getCancelledStatus() const;

private:
    void install(VRK::Task* task);

    VRK::Task* previousTask_;
    struct sigaction previousInterrupt_;
    struct sigaction previousTermination_;
};

#endif
