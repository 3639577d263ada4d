#include "plugins/prim/carriers/DoubleFunctor.h"

#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

Double::Double()
    : DataCarrierFunctor("Double", "Double precision real declarator", nullptr)
{
    addCarrierPorts(DoubleType::getInstance(), "Double precision real constant",
                    "Double precision real object");
}

Double::~Double() = default;

} // namespace Prim
