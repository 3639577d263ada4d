#include "base/run/FunctorScheduler.h"

#include <cassert>

namespace VRK {

FunctorScheduler::~FunctorScheduler() = default;

void FunctorScheduler::schedule(FunctorContainer& container, LogTag tag)
{
    container_ = &container;
    tag_ = tag;
    scheduleImpl();
}

void FunctorScheduler::run()
{
    assert(container_ != 0 && "schedule() before run()");
    runImpl();
}

Functor* FunctorScheduler::getScheduledFunctor(size_t index)
{
    return getScheduledFunctorImpl(index);
}

size_t FunctorScheduler::getScheduledFunctorCount() { return getScheduledFunctorCountImpl(); }

} // namespace VRK
