#include "plugins/prim/carriers/PercentFunctor.h"

#include "plugins/prim/values/numbers/PercentType.h"

namespace Prim {

Percent::Percent()
    : DataCarrierFunctor("Percent", "Percent declarer", nullptr)
{
    addCarrierPorts(PercentType::getInstance(), "Percent constant", "Percent object");
}

Percent::~Percent() = default;

} // namespace Prim
