#include "plugins/prim/flow/StepFunctor.h"

#include "plugins/prim/values/numbers/NonNegativeIntType.h"

namespace Prim {

Step::Step() : Functor("Step", "Receive and pass on current model step or iteration.", nullptr)
{
    addOptionalInputPort("step", "Current step or model iteration.",
                         NonNegativeIntType::getInstance(), true, 0);
    addOutputPort("step", "Current step or model iteration.", NonNegativeIntType::getInstance());
}

Step::~Step() = default;

void Step::runImpl()
{
    // A step passes at every pass of a loop: its two ports are reached by their place
    // (each is the first of its side) rather than looked up by name.
    passOnInputPortValue<NonNegativeIntData>(*getInputPorts().front(), *getOutputPorts().front());
}

} // namespace Prim
