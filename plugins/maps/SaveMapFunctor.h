#ifndef VRK_PLUGINS_MAPS_SAVEMAPFUNCTOR_H
#define VRK_PLUGINS_MAPS_SAVEMAPFUNCTOR_H

#include "plugins/prim/files/FilenamedFunctor.h"

namespace Maps {

// Writes a raster map as GeoTIFF or as an ASCII grid, chosen by the extension, through a
// temporary file beside it and a rename. It creates no folders.
class SaveMap : public Prim::FilenamedFunctor {
public:
    SaveMap();
    SaveMap(const SaveMap&) = default;
    SaveMap& operator=(const SaveMap&) = default;
    ~SaveMap() override;

    void runImpl() override;
};

} // namespace Maps

#endif
