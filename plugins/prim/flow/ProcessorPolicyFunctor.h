#ifndef VRK_PLUGINS_PRIM_FLOW_PROCESSORPOLICYFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_PROCESSORPOLICYFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once under a processor count of its own, process-wide: without
// forcing it can only lower the count. The count it found comes back afterwards, also
// after an error.
class ProcessorPolicy : public VRK::ContainerFunctor {
public:
    ProcessorPolicy();
    ProcessorPolicy(const ProcessorPolicy&) = default;
    ~ProcessorPolicy() override;

    void runContainerImpl() override;
};

} // namespace Prim

#endif
