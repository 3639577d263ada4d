#ifndef VRK_PLUGINS_PRIM_FLOW_REPEATFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_REPEATFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents "iterations" times, publishing the step, counted from 1, on its
// internal output "step".
class Repeat : public VRK::ContainerFunctor {
public:
    Repeat();
    Repeat(const Repeat&) = default;
    ~Repeat() override;

    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;
};

} // namespace Prim

#endif
