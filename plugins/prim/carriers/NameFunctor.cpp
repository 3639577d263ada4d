#include "plugins/prim/carriers/NameFunctor.h"

#include "plugins/prim/values/texts/NameType.h"

namespace Prim {

Name::Name()
    : DataCarrierFunctor("Name", "Name declarer", nullptr)
{
    addCarrierPorts(NameType::getInstance(), "Name constant", "Name object");
}

Name::~Name() = default;

} // namespace Prim
