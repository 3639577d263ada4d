#include "plugins/maps/NamedLookupTableRegistratorType.h"

namespace Maps {

NamedLookupTableRegistratorType::NamedLookupTableRegistratorType()
    : Prim::RegistratorType("named lookup table")
{
}

NamedLookupTableRegistratorType::~NamedLookupTableRegistratorType() = default;

} // namespace Maps
