#include "plugins/prim/environment/NumberedValueRegistratorType.h"

namespace Prim {

NumberedValueRegistratorType::NumberedValueRegistratorType()
    : VRK::BaseType("NumberedValueRegistrator",
                    "Functors with numbered value registration capabilities")
{
}

NumberedValueRegistratorType::~NumberedValueRegistratorType() = default;

} // namespace Prim
