#include "base/run/PassSchedule.h"

#include "base/graph/ContainerFunctor.h"
#include "base/graph/FunctorDependencies.h"
#include "base/graph/HookFunctor.h"
#include "base/run/ContainerFunctorUtils.h"
#include "base/task/ProcessorManager.h"

#include <algorithm>
#include <cassert>

namespace VRK {

PassSchedule::PassSchedule(const FunctorDependencies& dependencies)
    : PassSchedule(dependencies, std::vector<bool>(dependencies.getFunctors().size(), true))
{
}

PassSchedule::PassSchedule(const FunctorDependencies& dependencies,
                           const std::vector<bool>& selected)
{
    const auto& functors = dependencies.getFunctors();
    const size_t none = functors.size();
    std::vector<size_t> positions(functors.size(), none);
    for (size_t index : dependencies.getOrder()) {
        if (!selected[index] || dynamic_cast<HookFunctor*>(functors[index]))
            continue;
        positions[index] = order_.size();
        order_.push_back(functors[index]);
        containers_.push_back(functors[index]->asContainer());
        waits_.emplace_back();
        for (size_t predecessor : dependencies.getPredecessors(index))
            if (positions[predecessor] != none)
                waits_.back().push_back(positions[predecessor]);
    }
    // Consecutive functors of a valid order with no edge between them are independent:
    // a path from one to the other would need a functor between them.
    for (size_t position = 1; position < order_.size() && !independent_; ++position) {
        const auto& waits = waits_[position];
        independent_ = std::find(waits.begin(), waits.end(), position - 1) == waits.end();
    }
    holdsContainer_ = std::any_of(containers_.begin(), containers_.end(),
                                  [](const ContainerFunctor* container) { return container; });
}

Functor* PassSchedule::getFunctor(size_t index) const
{
    assert(index < order_.size() && "index < getScheduledFunctorCount()");
    return order_[index];
}

bool PassSchedule::canRunAtOnce() const
{
    return independent_ && ProcessorManager::Instance().getEffectiveProcessorCount() > 1;
}

void PassSchedule::runInOrder(LogTag tag) const
{
    for (size_t position = 0; position < order_.size(); ++position)
        ContainerFunctorUtils::runFunctor(*order_[position], containers_[position], tag);
}

} // namespace VRK
