#ifndef VRK_BASE_AUTOFUNCTORSCHEDULER_H
#define VRK_BASE_AUTOFUNCTORSCHEDULER_H

#include "base/ParallelFunctorScheduler.h"

#include <memory>

namespace VRK {

// Picks, for each pass over a container, the parallel scheduler when some of its
// contents are independent of each other and more than one processor may be used, and
// the sequential one otherwise (a chain gains nothing from the pool but its cost).
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
    // Parallel and sequential runs of the same schedule.
    class Schedule : public ParallelFunctorScheduler {
    public:
        using ParallelFunctorScheduler::hasIndependentFunctors;
        void runSequentially() { SequentialFunctorScheduler::runImpl(); }
        void runInParallel() { ParallelFunctorScheduler::runImpl(); }
        Functor* getScheduled(size_t index) { return getScheduledFunctorImpl(index); }
        size_t getScheduledCount() { return getScheduledFunctorCountImpl(); }
    };

    std::unique_ptr<Schedule> schedule_;
};

} // namespace VRK

#endif
