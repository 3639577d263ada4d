#ifndef VRK_BASE_GRAPH_FUNCTORDEPENDENCIES_H
#define VRK_BASE_GRAPH_FUNCTORDEPENDENCIES_H

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace VRK {

class Functor;
class FunctorContainer;

// Which direct contents of a container must run before which. A content runs after
// every sibling that produces data it or anything inside it reads: a read from deep
// inside a sibling counts as a read from that sibling. Reading an enclosing
// container's internal output adds no edge, and neither does a feedback port, which is
// how a loop may close a cycle.
class FunctorDependencies {
public:
    // A producing content before a reading one, both directly inside one container.
    using Edge = std::pair<Functor*, Functor*>;

    explicit FunctorDependencies(const FunctorContainer& container);
    // The dependencies of `container` when its edges are known already.
    FunctorDependencies(const FunctorContainer& container, const std::vector<Edge>& edges);

    // The edges of every container inside `script`, the script included, found in one
    // pass over its bound inputs: each read makes an edge only in the innermost
    // container that holds both ends, so nothing is walked once per enclosing container.
    static std::unordered_map<const FunctorContainer*, std::vector<Edge>>
    collectAll(const FunctorContainer& script);

    // The direct contents in script order; the indexes below refer to this list.
    const std::vector<Functor*>& getFunctors() const { return functors_; }
    // The contents that must run before content `index`: each once, ascending.
    const std::vector<size_t>& getPredecessors(size_t index) const;
    // Every content after its predecessors, ties broken by script order. Throws a
    // GraphException naming the functors of a cycle that no feedback port closes.
    std::vector<size_t> getOrder() const;

    // The content of `container` that is `functor` or holds it at some depth; none
    // when `functor` lies outside the container or is the container itself.
    static Functor* liftToContainer(Functor* functor, const FunctorContainer& container);

private:
    void listContents();
    void sortPredecessors();
    void addEdgesInto(size_t index, const Functor& reader);
    [[noreturn]] void raiseCycle(const std::vector<size_t>& unordered) const;

    const FunctorContainer& container_;
    std::vector<Functor*> functors_;
    std::unordered_map<const Functor*, size_t> indexes_;
    std::vector<std::vector<size_t>> predecessors_;
};

} // namespace VRK

#endif
