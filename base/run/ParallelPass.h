#ifndef VRK_BASE_RUN_PARALLELPASS_H
#define VRK_BASE_RUN_PARALLELPASS_H

// Internal to the host library: plugins and applications do not include it.

#include "base/log/LogTag.h"
#include "base/log/OrderedLog.h"
#include "base/run/RunContext.h"

#include <tbb/task_group.h>

#include <atomic>
#include <exception>
#include <limits>
#include <memory>
#include <mutex>
#include <vector>

namespace VRK {

class BranchStopScope;
class ContainerFunctor;
class Functor;
class LogFilter;
class PassSchedule;
class Task;

// One run of a schedule on the thread pool, with the result of running it in order.
// Each functor waits for a count of predecessors; the one that brings a successor's
// count to zero starts it. Every worker takes the run, the task, the log filter and the
// processor count of the thread that made the pass. The log lines come out in the order
// of the schedule. When a functor fails, the functors after it in that order stop at
// their next functor or loop pass and their lines are dropped, while those before it
// run to their end: then `run` throws the failure of the earliest functor that failed,
// as a run in order would have.
class ParallelPass {
public:
    ParallelPass(const PassSchedule& schedule, LogTag tag);
    ~ParallelPass();
    ParallelPass(const ParallelPass&) = delete;
    ParallelPass& operator=(const ParallelPass&) = delete;

    void run();

private:
    void runAll();
    static constexpr size_t None = std::numeric_limits<size_t>::max();

    void start(size_t position);
    void runOnWorker(size_t position);
    bool runFunctor(size_t position);
    void fail(size_t position, std::exception_ptr error);
    void rethrow();

    const std::vector<Functor*>& order_;
    const std::vector<ContainerFunctor*>& containers_;
    LogTag tag_;
    std::vector<std::atomic<size_t>> remaining_;
    std::vector<std::vector<size_t>> successors_;
    RunContext* context_;
    Task* task_;
    std::shared_ptr<LogFilter> filter_;
    unsigned int processors_;
    const BranchStopScope* outerStop_;
    OrderedLog log_;
    tbb::task_group group_;
    std::atomic<size_t> failedPosition_{None};
    std::mutex errorMutex_;
    std::exception_ptr error_;
    RunContext::FailureNote note_;
};

} // namespace VRK

#endif
