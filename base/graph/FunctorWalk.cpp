#include "base/graph/FunctorWalk.h"

#include "base/graph/ContainerFunctor.h"

#include <memory>
#include <utility>
#include <vector>

namespace VRK {

void FunctorWalk::forEach(const FunctorContainer& container,
                          const std::function<void(Functor&)>& visit)
{
    find(container, [&](Functor& functor) {
        visit(functor);
        return false;
    });
}

Functor* FunctorWalk::find(const FunctorContainer& container,
                           const std::function<bool(Functor&)>& match)
{
    using Level = std::pair<const std::vector<std::shared_ptr<Functor>>*, size_t>;
    std::vector<Level> levels{Level(&container.getFunctors(), 0)};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.second == level.first->size()) {
            levels.pop_back();
            continue;
        }
        Functor& functor = *(*level.first)[level.second++];
        if (match(functor))
            return &functor;
        if (const ContainerFunctor* inner = functor.asContainer())
            levels.emplace_back(&inner->getFunctors(), 0);
    }
    return nullptr;
}

} // namespace VRK
