#include "plugins/prim/flow/GroupFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"

namespace Prim {

Group::Group() : ContainerFunctor("Group", "Execute contained functors", nullptr) {}

Group::~Group() = default;

void Group::runContainerImpl()
{
    ControlLog::singleStep("Group",
                           [this] { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); });
}

} // namespace Prim
