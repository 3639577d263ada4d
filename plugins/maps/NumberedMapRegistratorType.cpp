#include "plugins/maps/NumberedMapRegistratorType.h"

namespace Maps {

NumberedMapRegistratorType::NumberedMapRegistratorType() : Prim::RegistratorType("numbered map") {}

NumberedMapRegistratorType::~NumberedMapRegistratorType() = default;

} // namespace Maps
