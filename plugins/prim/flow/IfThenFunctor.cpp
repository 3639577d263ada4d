#include "plugins/prim/flow/IfThenFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/ControlLog.h"
#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

IfThen::IfThen() : ContainerFunctor("IfThen", "Execute contained functors conditionally.", nullptr)
{
    addInputPort("condition", "", BoolType::getInstance(), false);
}

IfThen::~IfThen() = default;

void IfThen::runImpl()
{
    if (getInputPortValue<BoolData>("condition"))
        ControlLog::singleStep("IfThen", [this] { ContainerFunctor::runImpl(); });
}

bool IfThen::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void IfThen::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
