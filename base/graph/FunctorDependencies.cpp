#include "base/graph/FunctorDependencies.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/GraphException.h"
#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorNameUtils.h"
#include "base/graph/FunctorWalk.h"
#include "base/graph/PortScope.h"

#include <algorithm>
#include <functional>
#include <queue>

namespace VRK {

namespace {

// Calls `visit` on every input of `functor` and of everything inside it, internal
// inputs of containers included.
void forEachInputWithin(const Functor& functor, const std::function<void(const InputPort&)>& visit)
{
    for (const auto& port : functor.getInputPorts())
        visit(*port);
    auto* container = functor.asContainer();
    if (!container)
        return;
    for (const auto& port : container->getInternalInputPorts())
        visit(*port);
    for (const auto& inner : container->getFunctors())
        forEachInputWithin(*inner, visit);
}

} // namespace

FunctorDependencies::FunctorDependencies(const FunctorContainer& container) : container_(container)
{
    listContents();
    for (size_t index = 0; index < functors_.size(); ++index)
        addEdgesInto(index, *functors_[index]);
    sortPredecessors();
}

FunctorDependencies::FunctorDependencies(const FunctorContainer& container,
                                         const std::vector<Edge>& edges)
    : container_(container)
{
    listContents();
    for (const Edge& edge : edges)
        predecessors_[indexes_.at(edge.second)].push_back(indexes_.at(edge.first));
    sortPredecessors();
}

void FunctorDependencies::listContents()
{
    for (const auto& functor : container_.getFunctors()) {
        indexes_[functor.get()] = functors_.size();
        functors_.push_back(functor.get());
    }
    predecessors_.resize(functors_.size());
}

void FunctorDependencies::sortPredecessors()
{
    for (auto& predecessors : predecessors_) {
        std::sort(predecessors.begin(), predecessors.end());
        predecessors.erase(std::unique(predecessors.begin(), predecessors.end()),
                           predecessors.end());
    }
}

namespace {

// The two ancestors-or-selves of `reader` and `producer` that sit side by side in the
// innermost container holding both; the same functor twice when one holds the other.
FunctorDependencies::Edge meet(Functor* producer, Functor* reader)
{
    auto up = [](Functor*& functor) {
        FunctorContainer* container = functor->getContainer();
        Functor* outer = container ? container->asFunctor() : nullptr;
        if (outer)
            functor = outer;
        return outer != nullptr;
    };
    while (producer->getLevel() > reader->getLevel() && up(producer)) {
    }
    while (reader->getLevel() > producer->getLevel() && up(reader)) {
    }
    while (producer != reader && producer->getContainer() != reader->getContainer() && up(producer)
           && up(reader)) {
    }
    return FunctorDependencies::Edge(producer, reader);
}

} // namespace

std::unordered_map<const FunctorContainer*, std::vector<FunctorDependencies::Edge>>
FunctorDependencies::collectAll(const FunctorContainer& script)
{
    std::unordered_map<const FunctorContainer*, std::vector<Edge>> edges;
    FunctorWalk::forEach(script, [&](Functor& reader) {
        for (const InputPort* port : PortScope::getAllInputs(reader)) {
            if (!port->isBound() || port->isFeedback() || !port->getPeer()->getOwner())
                continue;
            const Edge edge = meet(port->getPeer()->getOwner(), &reader);
            if (edge.first != edge.second
                && edge.first->getContainer() == edge.second->getContainer())
                edges[edge.first->getContainer()].push_back(edge);
        }
    });
    return edges;
}

void FunctorDependencies::addEdgesInto(size_t index, const Functor& reader)
{
    forEachInputWithin(reader, [&](const InputPort& port) {
        if (!port.isBound() || port.isFeedback())
            return;
        Functor* producer = liftToContainer(port.getPeer()->getOwner(), container_);
        if (producer && producer != functors_[index])
            predecessors_[index].push_back(indexes_.at(producer));
    });
}

const std::vector<size_t>& FunctorDependencies::getPredecessors(size_t index) const
{
    assert(index < predecessors_.size() && "index < getFunctors().size()");
    return predecessors_[index];
}

std::vector<size_t> FunctorDependencies::getOrder() const
{
    const size_t count = functors_.size();
    std::vector<size_t> waiting(count);
    std::vector<std::vector<size_t>> successors(count);
    for (size_t index = 0; index < count; ++index) {
        waiting[index] = predecessors_[index].size();
        for (size_t predecessor : predecessors_[index])
            successors[predecessor].push_back(index);
    }
    std::priority_queue<size_t, std::vector<size_t>, std::greater<size_t>> ready;
    for (size_t index = 0; index < count; ++index)
        if (waiting[index] == 0)
            ready.push(index);
    std::vector<size_t> order;
    while (!ready.empty()) {
        const size_t next = ready.top();
        ready.pop();
        order.push_back(next);
        for (size_t successor : successors[next])
            if (--waiting[successor] == 0)
                ready.push(successor);
    }
    if (order.size() < count) {
        std::vector<size_t> unordered;
        for (size_t index = 0; index < count; ++index)
            if (waiting[index] != 0)
                unordered.push_back(index);
        raiseCycle(unordered);
    }
    return order;
}

// Every unordered content waits for another unordered one, so walking back along
// predecessors from any of them must come round to a content already met: the
// contents from there on form the cycle.
void FunctorDependencies::raiseCycle(const std::vector<size_t>& unordered) const
{
    auto isUnordered = [&](size_t index) {
        return std::binary_search(unordered.begin(), unordered.end(), index);
    };
    std::vector<size_t> walk{unordered.front()};
    for (;;) {
        const auto& predecessors = predecessors_[walk.back()];
        const size_t previous =
            *std::find_if(predecessors.begin(), predecessors.end(), isUnordered);
        auto seen = std::find(walk.begin(), walk.end(), previous);
        if (seen != walk.end()) {
            walk.erase(walk.begin(), seen);
            break;
        }
        walk.push_back(previous);
    }
    std::sort(walk.begin(), walk.end());
    std::vector<std::string> names;
    for (size_t index : walk)
        names.push_back(FunctorNameUtils::describeAt(*functors_[index]));
    // Diagnostics point at the first functor of the cycle in script order.
    ExceptionUtils::raiseAt<GraphException>(functors_[walk.front()]->getPosition(),
                                            "The functors " + FunctorNameUtils::listItems(names)
                                                + " depend on each other in a cycle that no "
                                                  "feedback port closes.");
}

Functor* FunctorDependencies::liftToContainer(Functor* functor, const FunctorContainer& container)
{
    while (functor && functor->getContainer() != &container) {
        FunctorContainer* outer = functor->getContainer();
        functor = outer ? outer->asFunctor() : nullptr;
    }
    return functor;
}

} // namespace VRK
