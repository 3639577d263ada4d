#include "plugins/prim/carriers/BoolFunctor.h"

#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

Bool::Bool()
    : DataCarrierFunctor("Bool", "Structure that can be used as a link to other functors.", nullptr)
{
    addCarrierPorts(BoolType::getInstance(), "Data carrier for boolean.", "Object is a boolean.");
}

Bool::~Bool() = default;

} // namespace Prim
