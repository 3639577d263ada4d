#ifndef VRK_PLUGINS_PRIM_FLOW_WHILEFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_WHILEFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents while a condition holds: not at all when "initialCondition" is false,
// then again as long as its internal input "condition" reads true after a pass. The
// contents set it through SetWhileCondition. No step, no limit: a condition that never
// turns false loops until the run is cancelled.
class While : public VRK::ContainerFunctor {
public:
    While();
    While(const While&) = default;
    ~While() override;

    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;
};

} // namespace Prim

#endif
