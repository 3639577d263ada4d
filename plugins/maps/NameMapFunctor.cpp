#include "plugins/maps/NameMapFunctor.h"

#include "base/util/Singleton.h"
#include "plugins/maps/MapType.h"
#include "plugins/maps/NamedMapRegistratorType.h"
#include "plugins/prim/values/texts/NameType.h"

namespace Maps {

NameMap::NameMap()
    : Prim::NameBanneredHookFunctor("NameMap", "Identify a map by assigning a name to it.",
                                    "mapName",
                                    VRK::Singleton<NamedMapRegistratorType>::getInstance())
{
    addInputPort("map", "Map.", MapType::getInstance(), false);
    addInputPort("mapName", "Map name identifier.", Prim::NameType::getInstance(), false);
}

NameMap::~NameMap() = default;

} // namespace Maps
