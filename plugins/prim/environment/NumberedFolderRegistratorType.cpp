#include "plugins/prim/environment/NumberedFolderRegistratorType.h"

namespace Prim {

NumberedFolderRegistratorType::NumberedFolderRegistratorType() : RegistratorType("numbered folder")
{
}

NumberedFolderRegistratorType::~NumberedFolderRegistratorType() = default;

} // namespace Prim
