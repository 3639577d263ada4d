#include "plugins/maps/NumberedMapRegistratorType.h"

namespace Maps {

NumberedMapRegistratorType::NumberedMapRegistratorType()
    : VRK::BaseType("NumberedMapRegistrator",
                    "Functors with numbered map registration capabilities")
{
}

NumberedMapRegistratorType::~NumberedMapRegistratorType() = default;

} // namespace Maps
