#include "plugins/maps/NameMapFunctor.h"

namespace Maps {

NameMap::NameMap() : RegistratorFunctor("NameMap", "map", "map") {}

NameMap::~NameMap() = default;

} // namespace Maps
