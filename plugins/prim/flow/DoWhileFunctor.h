#ifndef VRK_PLUGINS_PRIM_FLOW_DOWHILEFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_DOWHILEFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once, then again as long as its internal input "condition" reads
// true after a pass. The contents set it through SetWhileCondition. No step, no limit:
// a condition that never turns false loops until the run is cancelled.
class DoWhile : public VRK::ContainerFunctor {
public:
    DoWhile();
    DoWhile(const DoWhile&) = default;
    ~DoWhile() override;

    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;
};

} // namespace Prim

#endif
