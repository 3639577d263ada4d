#include "plugins/prim/carriers/IntSetFunctor.h"

#include "plugins/prim/values/numbers/IntSetType.h"

namespace Prim {

IntSet::IntSet()
    : DataCarrierFunctor("IntSet", "Structure that can be used as a link to other functors.",
                         nullptr)
{
    addCarrierPorts(IntSetType::getInstance(), "Data carrier for integer set.",
                    "The object is an integer set.");
}

IntSet::~IntSet() = default;

} // namespace Prim
