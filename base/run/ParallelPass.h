#ifndef VRK_BASE_RUN_PARALLELPASS_H
#define VRK_BASE_RUN_PARALLELPASS_H

// Internal to the host library: plugins and applications do not include it.

#include "base/log/LogTag.h"

#include <tbb/task_group.h>

#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

namespace VRK {

class ContainerFunctor;
class Functor;
class LogFilter;
class PassSchedule;
class RunContext;
class Task;

// One run of a schedule on the thread pool. Each functor waits for a count of
// predecessors; the one that brings a successor's count to zero starts it. Every worker
// takes the run, the task and the log filter of the thread that made the pass. After a
// failure no further functor starts; `run` then throws the first error, whatever it is.
class ParallelPass {
public:
    ParallelPass(const PassSchedule& schedule, LogTag tag);
    ~ParallelPass();
    ParallelPass(const ParallelPass&) = delete;
    ParallelPass& operator=(const ParallelPass&) = delete;

    void run();

private:
    void start(size_t position);
    void runOnWorker(size_t position);
    void fail(std::exception_ptr error);

    const std::vector<Functor*>& order_;
    const std::vector<ContainerFunctor*>& containers_;
    LogTag tag_;
    std::vector<std::atomic<size_t>> remaining_;
    std::vector<std::vector<size_t>> successors_;
    RunContext* context_;
    Task* task_;
    std::shared_ptr<LogFilter> filter_;
    tbb::task_group group_;
    std::atomic<bool> failed_{false};
    std::mutex errorMutex_;
    std::exception_ptr error_;
};

} // namespace VRK

#endif
