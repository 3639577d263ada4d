#include "plugins/prim/carriers/PositiveIntFunctor.h"

#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

PositiveInt::PositiveInt()
    : DataCarrierFunctor("PositiveInt", "Positive integer declarer", nullptr)
{
    addCarrierPorts(PositiveIntType::getInstance(), "Positive integer constant",
                    "Positive integer object");
}

PositiveInt::~PositiveInt() = default;

} // namespace Prim
