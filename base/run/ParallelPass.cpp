#include "base/run/ParallelPass.h"

#include "base/log/Logger.h"
#include "base/log/LoggerInitializer.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/run/PassSchedule.h"
#include "base/run/RunContext.h"
#include "base/task/Task.h"

namespace VRK {

ParallelPass::ParallelPass(const PassSchedule& schedule, LogTag tag)
    : order_(schedule.getOrder()), containers_(schedule.getContainers()), tag_(tag),
      remaining_(schedule.size()), successors_(schedule.size()), context_(RunContext::getCurrent()),
      task_(Task::getCurrentTask()), filter_(Logger::getCurrentThreadLogger()->getMainFilter())
{
    const auto& waits = schedule.getWaits();
    for (size_t position = 0; position < schedule.size(); ++position) {
        remaining_[position] = waits[position].size();
        for (size_t waited : waits[position])
            successors_[waited].push_back(position);
    }
}

ParallelPass::~ParallelPass() = default;

// The roots are picked before any starts: once one runs, the counts move.
void ParallelPass::run()
{
    std::vector<size_t> roots;
    for (size_t position = 0; position < order_.size(); ++position)
        if (remaining_[position] == 0)
            roots.push_back(position);
    for (size_t root : roots)
        start(root);
    group_.wait();
    if (error_)
        std::rethrow_exception(error_);
}

void ParallelPass::start(size_t position)
{
    group_.run([this, position] { runOnWorker(position); });
}

void ParallelPass::runOnWorker(size_t position)
{
    if (failed_.load())
        return;
    std::unique_ptr<RunContext::Activation> context;
    std::unique_ptr<Task::Activation> task;
    if (context_)
        context = std::make_unique<RunContext::Activation>(*context_);
    else
        task = std::make_unique<Task::Activation>(task_);
    LoggerInitializer logger(filter_);
    try {
        ContainerFunctorUtils::runFunctor(*order_[position], containers_[position], tag_);
    } catch (...) {
        fail(std::current_exception());
        return;
    }
    for (size_t successor : successors_[position])
        if (--remaining_[successor] == 0)
            start(successor);
}

void ParallelPass::fail(std::exception_ptr error)
{
    std::lock_guard<std::mutex> lock(errorMutex_);
    if (!error_)
        error_ = error;
    failed_.store(true);
}

} // namespace VRK
