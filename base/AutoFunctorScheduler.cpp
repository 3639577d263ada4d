#include "base/AutoFunctorScheduler.h"

#include "base/ProcessorManager.h"

#include <cassert>

namespace VRK {

AutoFunctorScheduler::AutoFunctorScheduler() = default;

AutoFunctorScheduler::AutoFunctorScheduler(const AutoFunctorScheduler&) : FunctorScheduler() {}

AutoFunctorScheduler::~AutoFunctorScheduler() = default;

void AutoFunctorScheduler::scheduleImpl()
{
    schedule_ = std::make_unique<Schedule>();
    schedule_->schedule(*getContainer(), getLogTag());
}

// Decided at every pass: a processor policy may change the count between passes.
void AutoFunctorScheduler::runImpl()
{
    assert(schedule_ != 0 && "schedule() before run()");
    if (schedule_->hasIndependentFunctors()
        && ProcessorManager::Instance().getEffectiveProcessorCount() > 1)
        schedule_->runInParallel();
    else
        schedule_->runSequentially();
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
