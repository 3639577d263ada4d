#ifndef VRK_BASE_RUN_RUNCONTEXT_H
#define VRK_BASE_RUN_RUNCONTEXT_H

// Internal to the host library: plugins and applications do not include it.

#include "base/graph/FunctorDependencies.h"
#include "base/run/ContainerPlan.h"
#include "base/run/RunIndex.h"
#include "base/task/Task.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace VRK {

class Functor;
class FunctorScheduler;

// What the threads working on one run share: the task, how the run's schedulers are
// made, the plan of each container (worked out on its first pass and kept for the
// run), and the functor whose failure ended the run.
class RunContext {
public:
    using SchedulerMaker = ContainerPlan::SchedulerMaker;

    RunContext(Task& task, SchedulerMaker makeScheduler);
    ~RunContext();
    RunContext(const RunContext&) = delete;
    RunContext& operator=(const RunContext&) = delete;

    // Makes copies of `prototype` through the registered scheduler cloners.
    static SchedulerMaker cloning(const FunctorScheduler& prototype);

    Task& getTask() const { return task_; }

    // The plan of `container`, made on the first request. Safe from any thread; each
    // thread remembers the plans it asked for last, so that the passes of a loop do not
    // all queue for the run's lock.
    ContainerPlan& getPlan(const FunctorContainer& container);
    // The order of the contents of `container`, from the run's index of the script.
    FunctorDependencies getDependencies(const FunctorContainer& container);
    // The same in the run this thread works on, or worked out afresh outside a run.
    static FunctorDependencies dependenciesOf(const FunctorContainer& container);

    // Which functor a failure that travels up this thread's stack is laid on: the
    // innermost that it left. It travels with the error from thread to thread, as the
    // parallel pass hands the error on.
    struct FailureNote {
        const Functor* functor = nullptr;
        std::string message;
    };
    // Lays the failure on `functor`, unless the same failure already lies on a functor
    // inside it (a failure travels outwards through every enclosing container). True
    // when this call laid it.
    bool noteFailure(const Functor& functor, const std::string& message);
    // Whether any thread of the run has noted a failure.
    bool hasFailure() const { return failed_.load(); }
    // This thread's note, and forgetting it: a new functor starts.
    static FailureNote takeFailureNote();
    static void forgetFailureNote();
    // Makes `note` this thread's, as the error it belongs to is thrown on here.
    static void restoreFailureNote(FailureNote note);

    // The context of the run this thread works on; none outside a run.
    static RunContext* getCurrent();

    // Makes a context, and its task, current on this thread for the scope's lifetime.
    class Activation {
    public:
        explicit Activation(RunContext& context);
        ~Activation();
        Activation(const Activation&) = delete;
        Activation& operator=(const Activation&) = delete;

    private:
        Task::Activation task_;
        RunContext* previous_;
    };

private:
    ContainerPlan& findOrMakePlan(const FunctorContainer& container);
    // An index that covers `container`, made on the first request; with the lock held.
    const RunIndex& indexFor(const FunctorContainer& container);

    // Tells this run from an earlier one at the same address.
    const unsigned long serial_;
    Task& task_;
    SchedulerMaker makeScheduler_;
    mutable std::mutex mutex_;
    std::unordered_map<const FunctorContainer*, std::unique_ptr<ContainerPlan>> plans_;
    std::vector<std::unique_ptr<RunIndex>> indexes_;
    std::atomic<bool> failed_{false};
};

} // namespace VRK

#endif
