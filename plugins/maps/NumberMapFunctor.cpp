#include "plugins/maps/NumberMapFunctor.h"

namespace Maps {

NumberMap::NumberMap() : RegistratorFunctor("NumberMap", "map", "map") {}

NumberMap::~NumberMap() = default;

} // namespace Maps
