#include "base/run/ParallelFunctorScheduler.h"

#include "base/run/ParallelPass.h"
#include "base/task/ProcessorManager.h"

namespace VRK {

ParallelFunctorScheduler::ParallelFunctorScheduler() = default;

ParallelFunctorScheduler::ParallelFunctorScheduler(const ParallelFunctorScheduler& other)
    : SequentialFunctorScheduler(other)
{
}

ParallelFunctorScheduler::~ParallelFunctorScheduler() = default;

void ParallelFunctorScheduler::runImpl()
{
    if (!getSchedule().hasIndependentFunctors()
        || ProcessorManager::Instance().getEffectiveProcessorCount() <= 1) {
        getSchedule().runInOrder(getLogTag());
        return;
    }
    ParallelPass pass(getSchedule(), getLogTag());
    pass.run();
}

} // namespace VRK
