#ifndef VRK_PLUGINS_PRIM_FLOW_LOGPOLICYFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_LOGPOLICYFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once under a log level of its own on the calling thread: without
// forcing it can only narrow the logging, never widen it. The filter it found comes
// back afterwards, also after an error.
class LogPolicy : public VRK::ContainerFunctor {
public:
    LogPolicy();
    LogPolicy(const LogPolicy&) = default;
    ~LogPolicy() override;

    void runContainerImpl() override;
};

} // namespace Prim

#endif
