#include "plugins/prim/environment/NamedValueRegistratorType.h"

namespace Prim {

NamedValueRegistratorType::NamedValueRegistratorType()
    : VRK::BaseType("NamedValueRegistrator", "Functors with named value registration capabilities")
{
}

NamedValueRegistratorType::~NamedValueRegistratorType() = default;

} // namespace Prim
