#include "plugins/prim/environment/NumberedPathRegistratorType.h"

namespace Prim {

NumberedPathRegistratorType::NumberedPathRegistratorType()
    : VRK::BaseType("NumberedPathRegistrator",
                    "Functors with numbered path registration capabilities")
{
}

NumberedPathRegistratorType::~NumberedPathRegistratorType() = default;

} // namespace Prim
