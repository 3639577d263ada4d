#include "plugins/prim/NameFunctor.h"

#include "plugins/prim/NameType.h"

namespace Prim {

Name::Name()
    : DataCarrierFunctor("Name", "Name declarer", nullptr)
{
    addCarrierPorts(NameType::getInstance(), "Name constant", "Name object");
}

Name::~Name() = default;

} // namespace Prim
