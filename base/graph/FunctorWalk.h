#ifndef VRK_BASE_GRAPH_FUNCTORWALK_H
#define VRK_BASE_GRAPH_FUNCTORWALK_H

#include <cstddef>
#include <functional>

namespace VRK {

class ContainerFunctor;
class Functor;
class FunctorContainer;

// The one depth-first walk over the functors inside a container: every depth, script
// order, each functor before its contents. It keeps its own stack, so a script nests as
// deep as memory allows rather than as deep as the call stack does.
class FunctorWalk {
public:
    static void forEach(const FunctorContainer& container,
                        const std::function<void(Functor&)>& visit);
    // The first functor of the walk for which `match` holds; none when no functor does.
    static Functor* find(const FunctorContainer& container,
                         const std::function<bool(Functor&)>& match);
    // Calls `enter` on every functor with its depth below `container` (1 for the
    // functors directly inside), and `leave` on each container functor after its
    // contents, with the same depth: what a nested format needs to open and close.
    static void walk(const FunctorContainer& container,
                     const std::function<void(Functor&, size_t)>& enter,
                     const std::function<void(ContainerFunctor&, size_t)>& leave);
};

} // namespace VRK

#endif
