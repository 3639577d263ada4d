#include "base/SequentialFunctorScheduler.h"

#include "base/ContainerFunctor.h"
#include "base/ContainerFunctorUtils.h"
#include "base/FunctorContainer.h"
#include "base/FunctorDependencies.h"
#include "base/HookFunctor.h"

#include <algorithm>
#include <cassert>

namespace VRK {

SequentialFunctorScheduler::SequentialFunctorScheduler() = default;

// A copy is unscheduled: it is scheduled on a container of its own.
SequentialFunctorScheduler::SequentialFunctorScheduler(const SequentialFunctorScheduler&)
    : FunctorScheduler()
{
}

SequentialFunctorScheduler::~SequentialFunctorScheduler() = default;

void SequentialFunctorScheduler::scheduleImpl()
{
    FunctorDependencies dependencies(*getContainer());
    scheduleSelected(dependencies, std::vector<bool>(dependencies.getFunctors().size(), true));
}

void SequentialFunctorScheduler::scheduleSelected(const FunctorDependencies& dependencies,
                                                  const std::vector<bool>& selected)
{
    const auto& functors = dependencies.getFunctors();
    const size_t none = functors.size();
    std::vector<size_t> positions(functors.size(), none);
    order_.clear();
    containers_.clear();
    waits_.clear();
    for (size_t index : dependencies.getOrder()) {
        if (!selected[index] || dynamic_cast<HookFunctor*>(functors[index]))
            continue;
        positions[index] = order_.size();
        order_.push_back(functors[index]);
        containers_.push_back(dynamic_cast<ContainerFunctor*>(functors[index]));
        waits_.emplace_back();
        for (size_t predecessor : dependencies.getPredecessors(index))
            if (positions[predecessor] != none)
                waits_.back().push_back(positions[predecessor]);
    }
}

void SequentialFunctorScheduler::runImpl()
{
    for (size_t position = 0; position < order_.size(); ++position)
        ContainerFunctorUtils::runFunctor(*order_[position], containers_[position], getLogTag());
}

Functor* SequentialFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    assert(index < order_.size() && "index < getScheduledFunctorCount()");
    return order_[index];
}

size_t SequentialFunctorScheduler::getScheduledFunctorCountImpl() { return order_.size(); }

// Consecutive functors of a valid order with no edge between them are independent: a
// path from one to the other would need a functor between them.
bool SequentialFunctorScheduler::hasIndependentFunctors() const
{
    for (size_t position = 1; position < order_.size(); ++position) {
        const auto& waits = waits_[position];
        if (std::find(waits.begin(), waits.end(), position - 1) == waits.end())
            return true;
    }
    return false;
}

} // namespace VRK
