#ifndef VRK_BASE_TASK_TASK_H
#define VRK_BASE_TASK_TASK_H

#include "base/task/Cancellable.h"
#include "base/task/TaskWorker.h"

#include <atomic>

namespace VRK {

// A run of the host. While a task is active on a thread, `getCurrentTask` returns it;
// worker threads activate their caller's task.
class Task : public Cancellable {
public:
    Task();
    ~Task() override;

    void cancel() override;
    bool isCancelled() const override;
    // Throws TaskCancellation when the task was cancelled, and BranchCancellation when a
    // failure elsewhere in the run has stopped the branch this thread works on.
    void checkCancellation() const;
    // Owns the processes the run leaves running; cancelling the task cancels it.
    TaskWorker* getWorker() { return &worker_; }

    static Task* getCurrentTask();

    // Makes a task current on this thread for the scope's lifetime.
    class Activation {
    public:
        explicit Activation(Task* task);
        ~Activation();
        Activation(const Activation&) = delete;
        Activation& operator=(const Activation&) = delete;

    private:
        Task* previous_;
    };

private:
    std::atomic<bool> cancelled_{false};
    TaskWorker worker_;
};

} // namespace VRK

#endif
