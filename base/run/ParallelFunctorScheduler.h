#ifndef VRK_BASE_RUN_PARALLELFUNCTORSCHEDULER_H
#define VRK_BASE_RUN_PARALLELFUNCTORSCHEDULER_H

#include "base/run/SequentialFunctorScheduler.h"

namespace VRK {

// Runs a container's contents on the thread pool: every functor starts as soon as what
// it depends on has run, so independent functors run at once, as many as the
// processor count allows. Worker threads work for the caller's run and log under the
// caller's filter. After a failure no further functor starts; the run then fails with
// the first error. Contents that form a chain, with nothing to run at once, run on the
// calling thread: the pool would only add its cost.
class ParallelFunctorScheduler : public SequentialFunctorScheduler {
public:
    ParallelFunctorScheduler();
    ParallelFunctorScheduler(const ParallelFunctorScheduler& other);
    ~ParallelFunctorScheduler() override;

protected:
    void runImpl() override;
};

} // namespace VRK

#endif
