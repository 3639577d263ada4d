#include "plugins/maps/NumberMapFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/maps/MapType.h"
#include "plugins/maps/NumberedMapRegistratorType.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Maps {

NumberMap::NumberMap()
    : Prim::NumberBanneredHookFunctor("NumberMap", "Identify a map by assigning a number to it.",
                                      "mapNumber",
                                      VRK::Singleton<NumberedMapRegistratorType>::getInstance())
{
    addInputPort("map", "Any map.", MapType::getInstance(), false);
    addInputPort("mapNumber", "Map number identifier.", Prim::PositiveIntType::getInstance(),
                 false);
}

NumberMap::~NumberMap() = default;

std::string NumberMap::getBanner() const
{
    return "Map " + Prim::NumberBanneredHookFunctor::getBanner();
}

} // namespace Maps
