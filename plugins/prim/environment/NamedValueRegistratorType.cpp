#include "plugins/prim/environment/NamedValueRegistratorType.h"

namespace Prim {

NamedValueRegistratorType::NamedValueRegistratorType() : RegistratorType("named value") {}

NamedValueRegistratorType::~NamedValueRegistratorType() = default;

} // namespace Prim
