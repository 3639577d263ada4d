#ifndef VRK_PLUGINS_PRIM_FLOW_IFTHENFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_IFTHENFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once when its "condition" is true; otherwise does nothing.
class IfThen : public VRK::ContainerFunctor {
public:
    IfThen();
    IfThen(const IfThen&) = default;
    ~IfThen() override;

    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;
};

} // namespace Prim

#endif
