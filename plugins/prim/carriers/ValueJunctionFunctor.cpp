#include "plugins/prim/carriers/ValueJunctionFunctor.h"

#include "plugins/prim/carriers/JunctionUtils.h"
#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

namespace {
const JunctionUtils::Ports ports = {"possibleValue1", "possibleValue2", "value",
                                    "Value output from an execution pipeline", "Value picked."};
} // namespace

ValueJunction::ValueJunction()
    : VRK::Functor("ValueJunction", "Pick one value from two execution pipelines.", nullptr)
{
    JunctionUtils::addPorts(*this, ports, DoubleType::getInstance());
}

ValueJunction::~ValueJunction() = default;

void ValueJunction::runImpl() { JunctionUtils::forward<DoubleData>(*this, ports); }

} // namespace Prim
