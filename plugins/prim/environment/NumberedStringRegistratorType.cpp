#include "plugins/prim/environment/NumberedStringRegistratorType.h"

namespace Prim {

NumberedStringRegistratorType::NumberedStringRegistratorType() : RegistratorType("numbered string")
{
}

NumberedStringRegistratorType::~NumberedStringRegistratorType() = default;

} // namespace Prim
