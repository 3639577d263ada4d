#ifndef VRK_PLUGINS_PRIM_FLOW_FORFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_FORFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once for each step from "firstIterationStep" to
// "lastIterationStep", both included, ascending by "stepIncrement", publishing the
// step on its internal output "step".
class For : public VRK::ContainerFunctor {
public:
    For();
    For(const For&) = default;
    ~For() override;

    // Refuses an increment below 1 that the script fixes before the run: typed in, or
    // carried unchanged from a constant.
    void verify() override;
    void runImpl() override;
    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;

private:
    void checkIncrement(int increment) const;
};

} // namespace Prim

#endif
