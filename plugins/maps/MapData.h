#ifndef VRK_PLUGINS_MAPS_MAPDATA_H
#define VRK_PLUGINS_MAPS_MAPDATA_H

#include "base/data/Data.h"
#include "base/data/NullType.h"
#include "tessaly/raster/RasterSource.h"

#include <memory>

namespace Maps {

// A raster map flowing between ports, kept in memory or in a file. The map is shared
// and never changed, so that copies of the data cost nothing. Produced by functors
// only: no editor, no viewer.
class MapData
    : public VRK::Data<std::shared_ptr<const Tessaly::RasterSource>, VRK::NullType, VRK::NullType> {
public:
    MapData() = default;
    explicit MapData(const std::shared_ptr<const Tessaly::RasterSource>& map);
    MapData(const MapData&) = default;
    ~MapData() override;
};

} // namespace Maps

#endif
