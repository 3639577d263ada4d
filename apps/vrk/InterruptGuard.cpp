#include "apps/vrk/InterruptGuard.h"

#include "base/script/AtomicFileWriter.h"
#include "base/task/Task.h"

#include <atomic>

#include <unistd.h>

namespace {

std::atomic<VRK::Task*> interruptedTask{nullptr};
std::atomic<int> cancellingSignal{0};
static_assert(std::atomic<VRK::Task*>::is_always_lock_free,
              "the signal handler may only touch lock-free atomics");
static_assert(std::atomic<int>::is_always_lock_free,
              "the signal handler may only touch lock-free atomics");

// Async-signal-safe: lock-free atomic operations, unlink and _exit, nothing else.
extern "C" void stopOnSignal(int signal)
{
    int none = 0;
    VRK::Task* task = interruptedTask.load();
    if (task && cancellingSignal.compare_exchange_strong(none, signal)) {
        task->cancel();
        return;
    }
    VRK::AtomicFileWriter::removeTemporaries();
    _exit(128 + signal);
}

} // namespace

InterruptGuard::InterruptGuard() { install(nullptr); }

InterruptGuard::InterruptGuard(VRK::Task& task) { install(&task); }

void InterruptGuard::install(VRK::Task* task)
{
    previousTask_ = interruptedTask.exchange(task);
    cancellingSignal.store(0);
    struct sigaction action {};
    action.sa_handler = &stopOnSignal;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &previousInterrupt_);
    sigaction(SIGTERM, &action, &previousTermination_);
}

InterruptGuard::~InterruptGuard()
{
    sigaction(SIGINT, &previousInterrupt_, nullptr);
    sigaction(SIGTERM, &previousTermination_, nullptr);
    interruptedTask.store(previousTask_);
}

int InterruptGuard::getCancelledStatus() const
{
    const int signal = cancellingSignal.load();
    return 128 + (signal != 0 ? signal : SIGINT);
}
