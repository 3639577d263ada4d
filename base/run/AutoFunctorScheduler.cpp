#include "base/run/AutoFunctorScheduler.h"

#include "base/graph/FunctorDependencies.h"
#include "base/run/ParallelPass.h"
#include "base/task/ProcessorManager.h"

#include <cassert>
#include <chrono>

namespace VRK {

AutoFunctorScheduler::AutoFunctorScheduler() = default;

AutoFunctorScheduler::AutoFunctorScheduler(const AutoFunctorScheduler&) : FunctorScheduler() {}

AutoFunctorScheduler::~AutoFunctorScheduler() = default;

namespace {
const double SlowPassSeconds = 0.001;
}

void AutoFunctorScheduler::scheduleImpl()
{
    schedule_ = PassSchedule(FunctorDependencies(*getContainer()));
    lastPassSeconds_ = 0;
}

// Decided at every pass: a processor policy may change the count between passes.
bool AutoFunctorScheduler::isWorthParallel() const
{
    return ProcessorManager::Instance().getEffectiveProcessorCount() > 1
           && schedule_.hasIndependentFunctors()
           && (schedule_.holdsContainer() || lastPassSeconds_ >= SlowPassSeconds);
}

void AutoFunctorScheduler::runImpl()
{
    if (isWorthParallel()) {
        ParallelPass(schedule_, getLogTag()).run();
        return;
    }
    const auto start = std::chrono::steady_clock::now();
    schedule_.runInOrder(getLogTag());
    lastPassSeconds_ =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Functor* AutoFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    assert(index < schedule_.size() && "index < getScheduledFunctorCount()");
    return schedule_.getOrder()[index];
}

size_t AutoFunctorScheduler::getScheduledFunctorCountImpl() { return schedule_.size(); }

} // namespace VRK
