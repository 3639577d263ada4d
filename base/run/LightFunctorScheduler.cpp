#include "base/run/LightFunctorScheduler.h"

#include "base/graph/Functor.h"
#include "base/graph/FunctorContainer.h"
#include "base/graph/FunctorDependencies.h"

#include <algorithm>

namespace VRK {

namespace {

// Marks `index` and, transitively, every content it depends on.
void selectWithNeeds(const FunctorDependencies& dependencies, size_t index,
                     std::vector<bool>& selected)
{
    if (selected[index])
        return;
    selected[index] = true;
    for (size_t predecessor : dependencies.getPredecessors(index))
        selectWithNeeds(dependencies, predecessor, selected);
}

bool isTargetOrInside(const FunctorContainer* container, const Functor* target)
{
    for (; container; container = container->getParentContainer())
        if (container->asFunctor() == target)
            return true;
    return false;
}

} // namespace

LightFunctorScheduler::LightFunctorScheduler() = default;

LightFunctorScheduler::LightFunctorScheduler(Functor* target) : target_(target) {}

LightFunctorScheduler::LightFunctorScheduler(const LightFunctorScheduler& other)
    : SequentialFunctorScheduler(other), target_(other.target_)
{
}

LightFunctorScheduler::~LightFunctorScheduler() = default;

void LightFunctorScheduler::scheduleImpl()
{
    FunctorDependencies dependencies(*getContainer());
    const auto& functors = dependencies.getFunctors();
    std::vector<bool> selected(functors.size(), target_ == nullptr);
    Functor* holder =
        target_ ? FunctorDependencies::liftToContainer(target_, *getContainer()) : nullptr;
    if (holder) {
        const size_t index = std::find(functors.begin(), functors.end(), holder) - functors.begin();
        selectWithNeeds(dependencies, index, selected);
    } else if (target_ && !isTargetOrInside(getContainer(), target_)) {
        selected.assign(functors.size(), true);
    }
    setSchedule(PassSchedule(dependencies, selected));
}

void LightFunctorScheduler::runImpl() { SequentialFunctorScheduler::runImpl(); }

Functor* LightFunctorScheduler::getScheduledFunctorImpl(size_t index)
{
    return SequentialFunctorScheduler::getScheduledFunctorImpl(index);
}

size_t LightFunctorScheduler::getScheduledFunctorCountImpl()
{
    return SequentialFunctorScheduler::getScheduledFunctorCountImpl();
}

} // namespace VRK
