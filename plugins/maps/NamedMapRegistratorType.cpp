#include "plugins/maps/NamedMapRegistratorType.h"

namespace Maps {

NamedMapRegistratorType::NamedMapRegistratorType()
    : VRK::BaseType("NamedMapRegistrator", "Functors with named map registration capabilities")
{
}

NamedMapRegistratorType::~NamedMapRegistratorType() = default;

} // namespace Maps
