#ifndef VRK_BASE_RUN_RUNINDEX_H
#define VRK_BASE_RUN_RUNINDEX_H

// Internal to the host library: plugins and applications do not include it.

#include "base/graph/FunctorDependencies.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace VRK {

class FeedbackStrongInputPort;
class FunctorContainer;

// What the plans of a run need to know of the containers inside one top container,
// found in one walk over it: which contents of each container read from which, and
// which feedback ports close their cycle at each. Asking each container in turn would
// walk everything inside it, once for every level that encloses it.
class RunIndex {
public:
    // Indexes `top` and every container inside it.
    explicit RunIndex(const FunctorContainer& top);

    bool covers(const FunctorContainer& container) const;
    // Only for a container that the index covers.
    FunctorDependencies getDependencies(const FunctorContainer& container) const;
    // The bound feedback ports whose reader and whose peer's producer meet nowhere
    // deeper than `container`, in script order.
    const std::vector<FeedbackStrongInputPort*>& getFeedback(const FunctorContainer& container) const;

private:
    std::unordered_set<const FunctorContainer*> covered_;
    std::unordered_map<const FunctorContainer*, std::vector<FunctorDependencies::Edge>> edges_;
    std::unordered_map<const FunctorContainer*, std::vector<FeedbackStrongInputPort*>> feedback_;
};

} // namespace VRK

#endif
