#ifndef VRK_BASE_RUN_PASSSCHEDULE_H
#define VRK_BASE_RUN_PASSSCHEDULE_H

// Internal to the host library: plugins and applications do not include it.

#include "base/log/LogTag.h"

#include <cstddef>
#include <vector>

namespace VRK {

class ContainerFunctor;
class Functor;
class FunctorDependencies;

// What a pass over a container runs, and in which order: the contents in dependency
// order (ties in script order, hook functors left to their consumers), each as a
// container or none, and for each the positions in that order of those it waits for.
// Schedulers make one and hand it to the pass that runs it.
class PassSchedule {
public:
    PassSchedule() = default;
    // The contents of `dependencies` whose index `selected` marks.
    PassSchedule(const FunctorDependencies& dependencies, const std::vector<bool>& selected);
    // Every content of `dependencies`.
    explicit PassSchedule(const FunctorDependencies& dependencies);

    const std::vector<Functor*>& getOrder() const { return order_; }
    const std::vector<ContainerFunctor*>& getContainers() const { return containers_; }
    const std::vector<std::vector<size_t>>& getWaits() const { return waits_; }
    size_t size() const { return order_.size(); }
    Functor* getFunctor(size_t index) const;

    // Whether the pass can share its functors out to the pool now: some are independent
    // and more than one processor may be used (a processor policy may change that count
    // between passes).
    bool canRunAtOnce() const;
    // Whether a scheduled functor is a container, whose contents run inside it.
    bool holdsContainer() const { return holdsContainer_; }

    // Runs the schedule on the calling thread, one functor after the other.
    void runInOrder(LogTag tag) const;

private:
    std::vector<Functor*> order_;
    std::vector<ContainerFunctor*> containers_;
    std::vector<std::vector<size_t>> waits_;
    bool independent_ = false;
    bool holdsContainer_ = false;
};

} // namespace VRK

#endif
