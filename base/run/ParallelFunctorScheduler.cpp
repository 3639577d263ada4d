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
    if (getSchedule().canRunAtOnce())
        ParallelPass(getSchedule(), getLogTag()).run();
    else
        getSchedule().runInOrder(getLogTag());
}

} // namespace VRK
