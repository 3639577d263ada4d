#ifndef VRK_PLUGINS_MAPS_LOADMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_LOADMAPFUNCTOR_H

#include "plugins/prim/files/FilenamedFunctor.h"

namespace Maps {

// Reads a raster map, with its NoData value, geotransform and projection, from a file
// of any format the raster library reads.
class LoadMap : public Prim::FilenamedFunctor {
public:
    LoadMap();
    LoadMap(const LoadMap&) = default;
    LoadMap& operator=(const LoadMap&) = default;
    ~LoadMap() override;

    void runImpl() override;
};

} // namespace Maps

#endif
