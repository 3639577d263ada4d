#include "plugins/maps/NumberedLookupTableRegistratorType.h"

namespace Maps {

NumberedLookupTableRegistratorType::NumberedLookupTableRegistratorType()
    : VRK::BaseType("NumberedLookupTableRegistrator",
                    "Functors with numbered lookup table registration capabilities")
{
}

NumberedLookupTableRegistratorType::~NumberedLookupTableRegistratorType() = default;

} // namespace Maps
