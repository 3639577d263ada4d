#include "plugins/prim/flow/SetWhileConditionFunctor.h"

#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

SetWhileCondition::SetWhileCondition()
    : Functor("SetWhileCondition",
              "This functor is used to store the current value which will be evaluated before "
              "the next iteration of the while loop.",
              nullptr)
{
    addInputPort("condition", "Get the value which will be assigned to the while functor.",
                 BoolType::getInstance(), false);
    addOutputPort("condition", "Pass the condition value to the while functor.",
                  BoolType::getInstance(), true);
}

SetWhileCondition::~SetWhileCondition() = default;

void SetWhileCondition::runImpl()
{
    getOutputPort("condition")->setDataPtr(getInputPort("condition")->getDataPtr());
}

} // namespace Prim
