#ifndef VRK_PLUGINS_MAPS_MAPFILEVIEWER_H
#define VRK_PLUGINS_MAPS_MAPFILEVIEWER_H

#include "plugins/prim/files/FilenameViewer.h"

namespace Maps {

// Inspects names of map files.
class MapFileViewer : public Prim::FilenameViewer {
public:
    MapFileViewer();
    MapFileViewer(const MapFileViewer&) = default;
    MapFileViewer& operator=(const MapFileViewer&) = default;
    ~MapFileViewer() override;
};

} // namespace Maps

#endif
