#include "base/run/RunIndex.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/FeedbackStrongInputPort.h"
#include "base/graph/FunctorWalk.h"

#include <cassert>

namespace VRK {

namespace {

size_t depthOf(const FunctorContainer* container)
{
    size_t depth = 0;
    for (; container; container = container->getParentContainer())
        ++depth;
    return depth;
}

// The innermost container that holds both the reader of `port` and its peer's
// producer, a container producer counting as holding itself: climbs from both to
// the same depth, then together, so that the cost is the depth and not its square.
const FunctorContainer* closingContainer(const InputPort& port)
{
    const Functor* producer = port.getPeer()->getOwner();
    const FunctorContainer* reading = port.getOwner()->getContainer();
    const FunctorContainer* producing =
        producer->asContainer() ? producer->asContainer() : producer->getContainer();
    size_t readingDepth = depthOf(reading);
    size_t producingDepth = depthOf(producing);
    for (; readingDepth > producingDepth; --readingDepth)
        reading = reading->getParentContainer();
    for (; producingDepth > readingDepth; --producingDepth)
        producing = producing->getParentContainer();
    while (reading != producing) {
        reading = reading->getParentContainer();
        producing = producing->getParentContainer();
    }
    return reading;
}

const std::vector<FeedbackStrongInputPort*> noFeedback;

} // namespace

RunIndex::RunIndex(const FunctorContainer& top) : edges_(FunctorDependencies::collectAll(top))
{
    covered_.insert(&top);
    FunctorWalk::forEach(top, [&](const Functor& functor) {
        if (const ContainerFunctor* container = functor.asContainer())
            covered_.insert(container);
        for (const auto& port : functor.getInputPorts()) {
            if (!port->isFeedback() || !port->isBound() || !port->getPeer()->getOwner())
                continue;
            auto* feedback = dynamic_cast<FeedbackStrongInputPort*>(port.get());
            assert(feedback != 0 && "a feedback input is a FeedbackStrongInputPort");
            feedback_[closingContainer(*port)].push_back(feedback);
        }
    });
}

bool RunIndex::covers(const FunctorContainer& container) const
{
    return covered_.count(&container) != 0;
}

FunctorDependencies RunIndex::getDependencies(const FunctorContainer& container) const
{
    assert(covers(container) && "the index covers the container");
    static const std::vector<FunctorDependencies::Edge> noEdges;
    auto found = edges_.find(&container);
    return FunctorDependencies(container, found == edges_.end() ? noEdges : found->second);
}

const std::vector<FeedbackStrongInputPort*>&
RunIndex::getFeedback(const FunctorContainer& container) const
{
    assert(covers(container) && "the index covers the container");
    auto found = feedback_.find(&container);
    return found == feedback_.end() ? noFeedback : found->second;
}

} // namespace VRK
