#ifndef VRK_BASE_RUN_AUTOFUNCTORSCHEDULER_H
#define VRK_BASE_RUN_AUTOFUNCTORSCHEDULER_H

#include "base/run/FunctorScheduler.h"
#include "base/run/PassSchedule.h"

namespace VRK {

// Picks, for each pass over a container, the pool or the order, by measured work. Only
// a pass with independent contents and more than one processor to use can go to the
// pool. The first pass goes there when one of the contents is a container (a loop or a
// block, whose contents run inside it); after that passes are timed: a pass in order
// of a millisecond or more sends the next one to the pool, and a pass on the pool under
// a fifth of that sends the next one back. Small plain functors, a loop body of carriers
// and steps, run faster one after the other.
class AutoFunctorScheduler : public FunctorScheduler {
public:
    AutoFunctorScheduler();
    AutoFunctorScheduler(const AutoFunctorScheduler& other);
    ~AutoFunctorScheduler() override;

protected:
    void scheduleImpl() override;
    void runImpl() override;
    Functor* getScheduledFunctorImpl(size_t index) override;
    size_t getScheduledFunctorCountImpl() override;

private:
    PassSchedule schedule_;
    // How the next pass runs: on the pool, or in order.
    bool parallel_ = false;
    unsigned int untimedPasses_ = 0;
};

} // namespace VRK

#endif
