#include "plugins/prim/environment/NumberedValueRegistratorType.h"

namespace Prim {

NumberedValueRegistratorType::NumberedValueRegistratorType() : RegistratorType("numbered value") {}

NumberedValueRegistratorType::~NumberedValueRegistratorType() = default;

} // namespace Prim
