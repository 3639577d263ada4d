#ifndef VRK_BASE_TASK_TASKWORKER_H
#define VRK_BASE_TASK_TASKWORKER_H

#include "base/task/Cancellable.h"

#include <atomic>
#include <mutex>
#include <sys/types.h>
#include <vector>

namespace VRK {

// Looks after the processes a run left running: reaps those that end and, when the
// run is cancelled, kills the others.
class TaskWorker : public Cancellable {
public:
    ~TaskWorker() override;

    void adopt(pid_t process);
    // Kills every adopted process that is still running.
    void cancel() override;
    bool isCancelled() const override { return cancelled_; }
    // Reaps the adopted processes that have ended; returns how many still run.
    size_t reapFinished();

private:
    std::mutex mutex_;
    std::vector<pid_t> processes_;
    std::atomic<bool> cancelled_{false};
};

} // namespace VRK

#endif
