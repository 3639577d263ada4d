#include "plugins/prim/StepFunctor.h"

#include "plugins/prim/NonNegativeIntType.h"

namespace Prim {

Step::Step() : Functor("Step", "Receive and pass on current model step or iteration.", nullptr)
{
    addOptionalInputPort("step", "Current step or model iteration.",
                         NonNegativeIntType::getInstance(), true, 0);
    addOutputPort("step", "Current step or model iteration.", NonNegativeIntType::getInstance());
}

Step::~Step() = default;

void Step::runImpl() { passOnInputPortValue<NonNegativeIntData>("step", "step"); }

} // namespace Prim
