#include "base/run/ParallelPass.h"

#include "base/log/Logger.h"
#include "base/log/LoggerInitializer.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/run/PassSchedule.h"
#include "base/task/BranchCancellation.h"
#include "base/task/BranchStopScope.h"
#include "base/task/ProcessorManager.h"
#include "base/task/Task.h"
#include "base/task/TaskCancellation.h"

#include <tbb/task_arena.h>

namespace VRK {

ParallelPass::ParallelPass(const PassSchedule& schedule, LogTag tag)
    : order_(schedule.getOrder()), containers_(schedule.getContainers()), tag_(tag),
      remaining_(schedule.size()), successors_(schedule.size()), context_(RunContext::getCurrent()),
      task_(Task::getCurrentTask()), filter_(Logger::getCurrentThreadLogger()->getMainFilter()),
      processors_(ProcessorManager::Instance().getProcessorCount()),
      outerStop_(BranchStopScope::current()), log_(schedule.size())
{
    const auto& waits = schedule.getWaits();
    for (size_t position = 0; position < schedule.size(); ++position) {
        remaining_[position] = waits[position].size();
        for (size_t waited : waits[position])
            successors_[waited].push_back(position);
    }
}

ParallelPass::~ParallelPass() = default;

void ParallelPass::run()
{
    // A processor policy's limit holds for everything its contents start, nested
    // passes included: they run in an arena of that many threads.
    const int limit = int(processors_);
    if (limit > 0 && limit < tbb::this_task_arena::max_concurrency()) {
        tbb::task_arena arena(limit);
        arena.execute([this] { runAll(); });
    } else {
        runAll();
    }
    rethrow();
}

// The roots are picked before any starts: once one runs, the counts move.
void ParallelPass::runAll()
{
    std::vector<size_t> roots;
    for (size_t position = 0; position < order_.size(); ++position)
        if (remaining_[position] == 0)
            roots.push_back(position);
    for (size_t root : roots)
        start(root);
    group_.wait();
}

void ParallelPass::start(size_t position)
{
    group_.run([this, position] { runOnWorker(position); });
}

void ParallelPass::runOnWorker(size_t position)
{
    // A run in order would not have reached a functor after one that failed.
    const bool succeeded = position < failedPosition_.load() && runFunctor(position);
    log_.finish(position);
    if (!succeeded)
        return;
    for (size_t successor : successors_[position])
        if (--remaining_[successor] == 0)
            start(successor);
}

bool ParallelPass::runFunctor(size_t position)
{
    std::unique_ptr<RunContext::Activation> context;
    std::unique_ptr<Task::Activation> task;
    if (context_)
        context = std::make_unique<RunContext::Activation>(*context_);
    else
        task = std::make_unique<Task::Activation>(task_);
    LoggerInitializer logger(filter_);
    Processor::BranchScope processors(processors_);
    BranchStopScope stop(failedPosition_, position, outerStop_);
    OrderedLog::Writing writing(log_, position);
    try {
        ContainerFunctorUtils::runFunctor(*order_[position], containers_[position], tag_);
        return true;
    } catch (const BranchCancellation&) {
        // Stopped by a failure before this functor, or by one outside the pass: `rethrow`
        // tells which.
    } catch (const TaskCancellation&) {
        // The task says so to every branch; `rethrow` throws it on.
    } catch (...) {
        fail(position, std::current_exception());
    }
    return false;
}

void ParallelPass::fail(size_t position, std::exception_ptr error)
{
    std::lock_guard<std::mutex> lock(errorMutex_);
    if (position >= failedPosition_.load())
        return;
    failedPosition_.store(position);
    error_ = error;
    note_ = RunContext::takeFailureNote();
    log_.dropFrom(position + 1);
}

void ParallelPass::rethrow()
{
    if (task_ && task_->isCancelled())
        throw TaskCancellation();
    if (outerStop_ && outerStop_->isStopped())
        throw BranchCancellation();
    if (error_) {
        RunContext::restoreFailureNote(std::move(note_));
        std::rethrow_exception(error_);
    }
}

} // namespace VRK
