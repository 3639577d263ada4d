#ifndef VRK_PLUGINS_PRIM_FLOW_IFNOTTHENFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_IFNOTTHENFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once when its "condition" is false; otherwise does nothing.
class IfNotThen : public VRK::ContainerFunctor {
public:
    IfNotThen();
    IfNotThen(const IfNotThen&) = default;
    ~IfNotThen() override;

    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;
};

} // namespace Prim

#endif
