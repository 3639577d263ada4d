#ifndef VRK_PLUGINS_MAPS_MAPFILETYPE_H
#define VRK_PLUGINS_MAPS_MAPFILETYPE_H

#include "plugins/maps/MapFileData.h"
#include "plugins/maps/MapFileKind.h"
#include "plugins/prim/files/FileKindType.h"

namespace Maps {

class MapFileType : public Prim::FileKindType<MapFileKind> {
public:
    MapFileType();
    ~MapFileType() override;
};

} // namespace Maps

#endif
