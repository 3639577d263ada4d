#include "base/graph/FunctorWalk.h"

#include "base/graph/ContainerFunctor.h"

#include <memory>
#include <vector>

namespace VRK {

namespace {

// The walk itself; it stops at the first functor for which `enter` returns true.
template <class Enter, class Leave>
Functor* walkUntil(const FunctorContainer& container, const Enter& enter, const Leave& leave)
{
    struct Level {
        ContainerFunctor* owner;
        const std::vector<std::shared_ptr<Functor>>* functors;
        size_t next;
    };
    std::vector<Level> levels{Level{nullptr, &container.getFunctors(), 0}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.next == level.functors->size()) {
            ContainerFunctor* owner = level.owner;
            levels.pop_back();
            if (owner)
                leave(*owner, levels.size());
            continue;
        }
        Functor& functor = *(*level.functors)[level.next++];
        if (enter(functor, levels.size()))
            return &functor;
        if (ContainerFunctor* inner = functor.asContainer())
            levels.push_back(Level{inner, &inner->getFunctors(), 0});
    }
    return nullptr;
}

void leaveNothing(ContainerFunctor&, size_t) {}

} // namespace

void FunctorWalk::forEach(const FunctorContainer& container,
                          const std::function<void(Functor&)>& visit)
{
    walkUntil(
        container,
        [&](Functor& functor, size_t) {
            visit(functor);
            return false;
        },
        leaveNothing);
}

Functor* FunctorWalk::find(const FunctorContainer& container,
                           const std::function<bool(Functor&)>& match)
{
    return walkUntil(
        container, [&](Functor& functor, size_t) { return match(functor); }, leaveNothing);
}

void FunctorWalk::walk(const FunctorContainer& container,
                       const std::function<void(Functor&, size_t)>& enter,
                       const std::function<void(ContainerFunctor&, size_t)>& leave)
{
    walkUntil(
        container,
        [&](Functor& functor, size_t depth) {
            enter(functor, depth);
            return false;
        },
        leave);
}

} // namespace VRK
