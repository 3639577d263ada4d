#include "base/AutoFunctorScheduler.h"

#include "base/ProcessorManager.h"

#include <algorithm>
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
    schedule_ = std::make_unique<Schedule>();
    schedule_->schedule(*getContainer(), getLogTag());
    const auto& containers = schedule_->getContainers();
    holdsContainer_ = std::any_of(containers.begin(), containers.end(),
                                  [](const ContainerFunctor* container) { return container; });
    lastPassSeconds_ = 0;
}

// Decided at every pass: a processor policy may change the count between passes.
bool AutoFunctorScheduler::isWorthParallel() const
{
    return ProcessorManager::Instance().getEffectiveProcessorCount() > 1
           && schedule_->hasIndependentFunctors()
           && (holdsContainer_ || lastPassSeconds_ >= SlowPassSeconds);
}

void AutoFunctorScheduler::runImpl()
{
    assert(schedule_ != 0 && "schedule() before run()");
    if (isWorthParallel()) {
        schedule_->runInParallel();
        return;
    }
    const auto start = std::chrono::steady_clock::now();
    schedule_->runSequentially();
    lastPassSeconds_ =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Functor* AutoFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    assert(schedule_ != 0 && "schedule() before getScheduledFunctor()");
    return schedule_->getScheduled(index);
}

size_t AutoFunctorScheduler::getScheduledFunctorCountImpl()
{
    return schedule_ ? schedule_->getScheduledCount() : 0;
}

} // namespace VRK
