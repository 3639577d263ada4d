#include "base/run/ParallelFunctorScheduler.h"

#include "base/run/ParallelPass.h"

namespace VRK {

ParallelFunctorScheduler::ParallelFunctorScheduler() = default;

ParallelFunctorScheduler::ParallelFunctorScheduler(const ParallelFunctorScheduler& other)
    : SequentialFunctorScheduler(other)
{
}

ParallelFunctorScheduler::~ParallelFunctorScheduler() = default;

void ParallelFunctorScheduler::runImpl()
{
    if (!getSchedule().hasIndependentFunctors()) {
        getSchedule().runInOrder(getLogTag());
        return;
    }
    ParallelPass pass(getSchedule(), getLogTag());
    pass.run();
}

} // namespace VRK
