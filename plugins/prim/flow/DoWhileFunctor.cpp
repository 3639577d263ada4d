#include "plugins/prim/flow/DoWhileFunctor.h"

#include "base/run/ContainerFunctorUtils.h"
#include "plugins/prim/flow/LoopUtils.h"
#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

DoWhile::DoWhile()
    : ContainerFunctor("DoWhile",
                       "Execute contained functors while \"Set While Condition\" is true.", nullptr)
{
    addInternalInputPort(VRK::FeedbackStrongInputPort(
        "condition", "The current value of condition for the loop.", BoolType::getInstance()));
}

DoWhile::~DoWhile() = default;

void DoWhile::runImpl()
{
    LoopUtils::repeatWhile("===[ Running DoWhile Condition ]===\n", [this] {
        ContainerFunctor::runImpl();
        return getInternalInputPortValue<BoolType>("condition");
    });
}

bool DoWhile::isCompatible(VRK::Functor* functor) const
{
    assert(functor != 0 && "functor != 0");
    return true;
}

void DoWhile::runContainerImpl() { VRK::ContainerFunctorUtils::runFunctorsInContainer(*this); }

} // namespace Prim
