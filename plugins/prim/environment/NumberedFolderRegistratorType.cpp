#include "plugins/prim/environment/NumberedFolderRegistratorType.h"

namespace Prim {

NumberedFolderRegistratorType::NumberedFolderRegistratorType()
    : VRK::BaseType("NumberedFolderRegistrator",
                    "Functors with numbered folder registration capabilities")
{
}

NumberedFolderRegistratorType::~NumberedFolderRegistratorType() = default;

} // namespace Prim
