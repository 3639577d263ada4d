#include "plugins/prim/carriers/IntFunctor.h"

#include "plugins/prim/values/numbers/IntType.h"

namespace Prim {

Int::Int()
    : DataCarrierFunctor("Int", "Integer declarer", nullptr)
{
    addCarrierPorts(IntType::getInstance(), "Integer constant", "Integer object");
}

Int::~Int() = default;

} // namespace Prim
