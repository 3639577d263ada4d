#include "plugins/prim/carriers/NonNegativeIntFunctor.h"

#include "plugins/prim/values/numbers/NonNegativeIntType.h"

namespace Prim {

NonNegativeInt::NonNegativeInt()
    : DataCarrierFunctor("NonNegativeInt", "Non-negative integer declarer", nullptr)
{
    addCarrierPorts(NonNegativeIntType::getInstance(), "Non-negative integer constant",
                    "Non-negative integer object");
}

NonNegativeInt::~NonNegativeInt() = default;

} // namespace Prim
