#ifndef VRK_BASE_RUN_AUTOFUNCTORSCHEDULER_H
#define VRK_BASE_RUN_AUTOFUNCTORSCHEDULER_H

#include "base/run/FunctorScheduler.h"
#include "base/run/PassSchedule.h"

namespace VRK {

// Picks, for each pass over a container, the parallel or the sequential scheduler. It
// runs in parallel only when more than one processor may be used, some contents are
// independent of each other, and there is work enough to repay the pool: one of the
// contents is a container (a loop or a block, whose contents run inside it), or the
// last pass over the container took a millisecond or more. Small plain functors, a
// loop body of carriers and steps, run faster one after the other.
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
    bool isWorthParallel() const;

    PassSchedule schedule_;
    double lastPassSeconds_ = 0;
};

} // namespace VRK

#endif
