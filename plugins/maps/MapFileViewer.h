#ifndef VRK_PLUGINS_MAPS_MAPFILEVIEWER_H
#define VRK_PLUGINS_MAPS_MAPFILEVIEWER_H

#include "plugins/maps/MapFileKind.h"
#include "plugins/prim/files/FileKindViewer.h"

namespace Maps {

// Inspects names of map files.
class MapFileViewer : public Prim::FileKindViewer<MapFileKind> {
public:
    ~MapFileViewer() override;
};

} // namespace Maps

extern template class Prim::FileKindViewer<Maps::MapFileKind>;

#endif
