#ifndef VRK_BASE_RUN_SEQUENTIALFUNCTORSCHEDULER_H
#define VRK_BASE_RUN_SEQUENTIALFUNCTORSCHEDULER_H

#include "base/run/FunctorScheduler.h"
#include "base/run/PassSchedule.h"

#include <utility>

namespace VRK {

// Runs a container's contents one after the other on the calling thread, each after
// what it depends on, ties in script order. Hook functors are left to their consumers.
class SequentialFunctorScheduler : public FunctorScheduler {
public:
    SequentialFunctorScheduler();
    SequentialFunctorScheduler(const SequentialFunctorScheduler& other);
    ~SequentialFunctorScheduler() override;

protected:
    void scheduleImpl() override;
    void runImpl() override;
    Functor* getScheduledFunctorImpl(size_t index) override;
    size_t getScheduledFunctorCountImpl() override;

    const PassSchedule& getSchedule() const { return schedule_; }
    void setSchedule(PassSchedule schedule) { schedule_ = std::move(schedule); }

private:
    PassSchedule schedule_;
};

} // namespace VRK

#endif
