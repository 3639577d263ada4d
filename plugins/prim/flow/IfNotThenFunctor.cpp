#include "plugins/prim/flow/IfNotThenFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

IfNotThen::IfNotThen()
    : ContainerFunctor("IfNotThen", "Execute contained functors conditionally.", nullptr)
{
    addInputPort("condition", "", BoolType::getInstance(), false);
}

IfNotThen::~IfNotThen() = default;

void IfNotThen::runImpl()
{
    if (!getInputPortValue<BoolData>("condition"))
        ControlLog::singleStep("IfNotThen", [this] { ContainerFunctor::runImpl(); });
}

bool IfNotThen::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void IfNotThen::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
