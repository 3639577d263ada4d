#include "plugins/prim/environment/NumberedStringRegistratorType.h"

namespace Prim {

NumberedStringRegistratorType::NumberedStringRegistratorType()
    : VRK::BaseType("NumberedStringRegistrator",
                    "Functors with numbered string registration capabilities")
{
}

NumberedStringRegistratorType::~NumberedStringRegistratorType() = default;

} // namespace Prim
