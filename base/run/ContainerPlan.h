#ifndef VRK_BASE_RUN_CONTAINERPLAN_H
#define VRK_BASE_RUN_CONTAINERPLAN_H

// Internal to the host library: plugins and applications do not include it.

#include "base/log/LogTag.h"

#include <functional>
#include <memory>
#include <vector>

namespace VRK {

class ContainerFunctor;
class FeedbackStrongInputPort;
class FunctorContainer;
class FunctorScheduler;
class HookFunctor;
class StrongInputPort;

// What a pass over a container's contents needs, worked out once for a run: the
// scheduler that orders them, the hook functors among them, the container's internal
// inputs, and the feedback ports whose cycle closes at this container (their reader
// and their peer's producer meet nowhere deeper).
class ContainerPlan {
public:
    using SchedulerMaker = std::function<std::unique_ptr<FunctorScheduler>()>;

    // `feedback`: the bound feedback ports whose cycle closes at this container.
    ContainerPlan(const FunctorContainer& container, SchedulerMaker makeScheduler,
                  std::vector<FeedbackStrongInputPort*> feedback);
    ~ContainerPlan();
    ContainerPlan(const ContainerPlan&) = delete;
    ContainerPlan& operator=(const ContainerPlan&) = delete;

    // The scheduler, scheduled on the container on first request (again if `tag`
    // changes).
    FunctorScheduler& getScheduler(LogTag tag);

    // A pass starts: the contents' outputs and pulled inputs, and the container's
    // internal inputs, are emptied, so that nothing of an earlier pass leaks into it.
    void startPass() const;
    // A pass ended: the hook functors pull their inputs for their consumer, the
    // feedback ports take what their peers produced in it, and the container's
    // internal inputs what its contents produced.
    void endPass() const;
    // A new run of the container starts: its cycles carry nothing yet.
    void clearFeedback() const;

private:
    const FunctorContainer& container_;
    SchedulerMaker makeScheduler_;
    std::unique_ptr<FunctorScheduler> scheduler_;
    LogTag scheduledTag_ = debug;
    std::vector<HookFunctor*> hooks_;
    std::vector<FeedbackStrongInputPort*> feedback_;
    std::vector<StrongInputPort*> internalInputs_;
    std::vector<FeedbackStrongInputPort*> internalFeedback_;
};

} // namespace VRK

#endif
