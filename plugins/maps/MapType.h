#ifndef VRK_PLUGINS_MAPS_MAPTYPE_H
#define VRK_PLUGINS_MAPS_MAPTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/maps/MapData.h"

namespace Maps {

class MapType : public VRK::TypeShim<MapType, MapData> {
public:
    MapType();
    ~MapType() override;
};

} // namespace Maps

#endif
