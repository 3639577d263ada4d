#ifndef VRK_BASE_RUN_LIGHTFUNCTORSCHEDULER_H
#define VRK_BASE_RUN_LIGHTFUNCTORSCHEDULER_H

#include "base/run/SequentialFunctorScheduler.h"

namespace VRK {

// Runs one functor, the target, and only what it needs. In a container that holds the
// target at some depth, it runs the content that holds it after what that content
// depends on; the contents of the target itself do not run (a light run of a container
// publishes what it sets before running its contents, such as a work directory); any
// other container, run because the target needs what it produces, runs whole.
// Without a target it runs everything, as the sequential scheduler does.
class LightFunctorScheduler : public SequentialFunctorScheduler {
public:
    LightFunctorScheduler();
    explicit LightFunctorScheduler(Functor* target);
    LightFunctorScheduler(const LightFunctorScheduler& other);
    ~LightFunctorScheduler() override;

    void setTarget(Functor* target) { target_ = target; }
    Functor* getTarget() const { return target_; }

protected:
    void scheduleImpl() override;
    void runImpl() override;
    Functor* getScheduledFunctorImpl(size_t index) override;
    size_t getScheduledFunctorCountImpl() override;

private:
    Functor* target_ = nullptr;
};

} // namespace VRK

#endif
