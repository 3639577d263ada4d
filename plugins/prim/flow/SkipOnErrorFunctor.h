#ifndef VRK_PLUGINS_PRIM_FLOW_SKIPONERRORFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_SKIPONERRORFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once; an error among them ends that run and is logged and ignored,
// so the enclosing script goes on. Memory exhaustion and the user's cancellation are
// not errors of the model and pass through.
class SkipOnError : public VRK::ContainerFunctor {
public:
    SkipOnError();
    SkipOnError(const SkipOnError&) = default;
    ~SkipOnError() override;

    bool isCompatible(VRK::Functor* functor) const override;
    void runContainerImpl() override;
};

} // namespace Prim

#endif
