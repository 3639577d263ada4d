#ifndef VRK_BASE_SEQUENTIALFUNCTORSCHEDULER_H
#define VRK_BASE_SEQUENTIALFUNCTORSCHEDULER_H

#include "base/FunctorScheduler.h"

#include <vector>

namespace VRK {

class ContainerFunctor;
class FunctorDependencies;

// Runs a container's contents one after the other on the calling thread, each after
// what it depends on, ties in script order. Hook functors are left to their consumers.
class SequentialFunctorScheduler : public FunctorScheduler {
public:
    SequentialFunctorScheduler();
    SequentialFunctorScheduler(const SequentialFunctorScheduler& other);
    ~SequentialFunctorScheduler() override;

protected:
    void scheduleImpl() override;
    void runImpl() override;
    Functor* getScheduledFunctorImpl(size_t index) override;
    size_t getScheduledFunctorCountImpl() override;

    // Schedules, in dependency order, the contents whose index `selected` marks.
    void scheduleSelected(const FunctorDependencies& dependencies,
                          const std::vector<bool>& selected);

    const std::vector<Functor*>& getOrder() const { return order_; }
    // For each scheduled functor, itself as a container, or none.
    const std::vector<ContainerFunctor*>& getContainers() const { return containers_; }
    // For each scheduled functor, the positions in the order of those it waits for.
    const std::vector<std::vector<size_t>>& getWaits() const { return waits_; }
    // Whether two scheduled functors could run at the same time.
    bool hasIndependentFunctors() const;

private:
    std::vector<Functor*> order_;
    std::vector<ContainerFunctor*> containers_;
    std::vector<std::vector<size_t>> waits_;
};

} // namespace VRK

#endif
