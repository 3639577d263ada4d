#include "base/ParallelFunctorScheduler.h"

#include "base/ParallelPass.h"

namespace VRK {

ParallelFunctorScheduler::ParallelFunctorScheduler() = default;

ParallelFunctorScheduler::ParallelFunctorScheduler(const ParallelFunctorScheduler& other)
    : SequentialFunctorScheduler(other)
{
}

ParallelFunctorScheduler::~ParallelFunctorScheduler() = default;

void ParallelFunctorScheduler::runImpl()
{
    if (!hasIndependentFunctors()) {
        SequentialFunctorScheduler::runImpl();
        return;
    }
    ParallelPass pass(getOrder(), getContainers(), getWaits(), getLogTag());
    pass.run();
}

} // namespace VRK
