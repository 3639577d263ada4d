#include "apps/vrk/InterruptGuard.h"

#include "base/task/Task.h"

#include <atomic>

namespace {

std::atomic<VRK::Task*> interruptedTask{nullptr};
static_assert(std::atomic<VRK::Task*>::is_always_lock_free,
              "the signal handler may only touch lock-free atomics");

// Async-signal-safe: two lock-free atomic operations, nothing else.
extern "C" void cancelInterruptedTask(int)
{
    if (VRK::Task* task = interruptedTask.load())
        task->cancel();
}

} // namespace

InterruptGuard::InterruptGuard(VRK::Task& task)
{
    interruptedTask.store(&task);
    struct sigaction action {};
    action.sa_handler = &cancelInterruptedTask;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESETHAND;
    sigaction(SIGINT, &action, &previous_);
}

InterruptGuard::~InterruptGuard()
{
    sigaction(SIGINT, &previous_, nullptr);
    interruptedTask.store(nullptr);
}
