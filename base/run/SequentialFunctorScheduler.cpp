#include "base/run/SequentialFunctorScheduler.h"

#include "base/run/RunContext.h"

namespace VRK {

SequentialFunctorScheduler::SequentialFunctorScheduler() = default;

// A copy is unscheduled: it is scheduled on a container of its own.
SequentialFunctorScheduler::SequentialFunctorScheduler(const SequentialFunctorScheduler&)
    : FunctorScheduler()
{
}

SequentialFunctorScheduler::~SequentialFunctorScheduler() = default;

void SequentialFunctorScheduler::scheduleImpl()
{
    schedule_ = PassSchedule(RunContext::dependenciesOf(*getContainer()));
}

void SequentialFunctorScheduler::runImpl() { schedule_.runInOrder(getLogTag()); }

Functor* SequentialFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    return schedule_.getFunctor(index);
}

size_t SequentialFunctorScheduler::getScheduledFunctorCountImpl() { return schedule_.size(); }

} // namespace VRK
