#ifndef VRK_PLUGINS_MAPS_MAPFILETYPE_H
#define VRK_PLUGINS_MAPS_MAPFILETYPE_H

#include "base/data/TypeShim.h"
#include "plugins/maps/MapFileData.h"

namespace Maps {

class MapFileType : public VRK::TypeShim<MapFileType, MapFileData> {
public:
    MapFileType();
    ~MapFileType() override;
};

} // namespace Maps

#endif
