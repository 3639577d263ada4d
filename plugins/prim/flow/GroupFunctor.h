#ifndef VRK_PLUGINS_PRIM_FLOW_GROUPFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_GROUPFUNCTOR_H

#include "base/graph/ContainerFunctor.h"

namespace Prim {

// Runs its contents once per run: a box that keeps a part of a script together.
class Group : public VRK::ContainerFunctor {
public:
    Group();
    Group(const Group&) = default;
    ~Group() override;

    void runContainerImpl() override;
};

} // namespace Prim

#endif
