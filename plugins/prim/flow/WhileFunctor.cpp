#include "plugins/prim/flow/WhileFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/LoopUtils.h"
#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

While::While()
    : ContainerFunctor("While", "Execute contained functors while \"Set While Condition\" is true.",
                       nullptr)
{
    addInputPort("initialCondition", "The initial expression value for the while Functor.",
                 BoolType::getInstance(), false);
    addInternalInputPort("condition", "The current value of condition  for the loop.",
                         BoolType::getInstance());
}

While::~While() = default;

void While::runImpl()
{
    if (!getInputPortValue<BoolData>("initialCondition"))
        return;
    LoopUtils::repeatWhile("===[ Running While Condition ]===\n", [this] {
        ContainerFunctor::runImpl();
        return getInternalInputPortValue<BoolType>("condition");
    });
}

bool While::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void While::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
