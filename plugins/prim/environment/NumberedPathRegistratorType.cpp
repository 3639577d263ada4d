#include "plugins/prim/environment/NumberedPathRegistratorType.h"

namespace Prim {

NumberedPathRegistratorType::NumberedPathRegistratorType() : RegistratorType("numbered path") {}

NumberedPathRegistratorType::~NumberedPathRegistratorType() = default;

} // namespace Prim
