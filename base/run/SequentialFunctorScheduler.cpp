#include "base/run/SequentialFunctorScheduler.h"

#include "base/graph/FunctorDependencies.h"

#include <cassert>

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
    schedule_ = PassSchedule(FunctorDependencies(*getContainer()));
}

void SequentialFunctorScheduler::runImpl() { schedule_.runInOrder(getLogTag()); }

Functor* SequentialFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    assert(index < schedule_.size() && "index < getScheduledFunctorCount()");
    return schedule_.getOrder()[index];
}

size_t SequentialFunctorScheduler::getScheduledFunctorCountImpl() { return schedule_.size(); }

} // namespace VRK
