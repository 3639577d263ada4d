#ifndef VRK_PLUGINS_MAPS_MAPFILEDATA_H
#define VRK_PLUGINS_MAPS_MAPFILEDATA_H

#include "plugins/maps/MapFileEditor.h"
#include "plugins/maps/MapFileKind.h"
#include "plugins/maps/MapFileViewer.h"
#include "plugins/prim/files/FileKindData.h"

namespace Maps {

// The name of a map file, held as a compound filename.
class MapFileData : public Prim::FileKindData<MapFileKind> {
public:
    using FileKindData::FileKindData;
    ~MapFileData() override;
};

} // namespace Maps

#endif
