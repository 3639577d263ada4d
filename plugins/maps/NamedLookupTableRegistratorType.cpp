#include "plugins/maps/NamedLookupTableRegistratorType.h"

namespace Maps {

NamedLookupTableRegistratorType::NamedLookupTableRegistratorType()
    : VRK::BaseType("NamedLookupTableRegistrator",
                    "Functors with named lookup table registration capabilities")
{
}

NamedLookupTableRegistratorType::~NamedLookupTableRegistratorType() = default;

} // namespace Maps
