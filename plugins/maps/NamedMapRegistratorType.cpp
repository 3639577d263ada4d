#include "plugins/maps/NamedMapRegistratorType.h"

namespace Maps {

NamedMapRegistratorType::NamedMapRegistratorType() : Prim::RegistratorType("named map") {}

NamedMapRegistratorType::~NamedMapRegistratorType() = default;

} // namespace Maps
