#include "base/run/ContainerPlan.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/HookFunctor.h"
#include "base/run/FunctorScheduler.h"

namespace VRK {

ContainerPlan::ContainerPlan(const FunctorContainer& container, SchedulerMaker makeScheduler,
                             std::vector<FeedbackStrongInputPort*> feedback)
    : container_(container), makeScheduler_(std::move(makeScheduler)), feedback_(std::move(feedback))
{
    for (const auto& functor : container.getFunctors())
        if (auto* hook = dynamic_cast<HookFunctor*>(functor.get()))
            hooks_.push_back(hook);
    if (const ContainerFunctor* owner =
            container.asFunctor() ? container.asFunctor()->asContainer() : nullptr)
        for (const auto& port : owner->getInternalInputPorts()) {
            if (auto* feedback = dynamic_cast<FeedbackStrongInputPort*>(port.get()))
                internalFeedback_.push_back(feedback);
            else
                internalInputs_.push_back(port.get());
        }
}

ContainerPlan::~ContainerPlan() = default;

FunctorScheduler& ContainerPlan::getScheduler(LogTag tag)
{
    if (!scheduler_) {
        scheduler_ = makeScheduler_();
        assert(scheduler_ != 0 && "scheduler != 0");
    } else if (tag == scheduledTag_) {
        return *scheduler_;
    }
    scheduler_->schedule(const_cast<FunctorContainer&>(container_), tag);
    scheduledTag_ = tag;
    return *scheduler_;
}

void ContainerPlan::startPass() const
{
    for (const auto& functor : container_.getFunctors()) {
        functor->resetOutputPortData(true);
        functor->resetInputPortData(false);
    }
    for (StrongInputPort* port : internalInputs_)
        port->resetData();
}

void ContainerPlan::endPass() const
{
    for (HookFunctor* hook : hooks_) {
        hook->Functor::preparePorts();
        hook->pullInputs();
    }
    for (FeedbackStrongInputPort* port : feedback_)
        port->pullFeedback();
    for (StrongInputPort* port : internalInputs_)
        port->pullData();
    for (FeedbackStrongInputPort* port : internalFeedback_)
        port->pullFeedback();
}

void ContainerPlan::clearFeedback() const
{
    for (FeedbackStrongInputPort* port : feedback_)
        port->resetData();
}

} // namespace VRK
