#include "plugins/maps/MapData.h"

namespace Maps {

MapData::MapData(const std::shared_ptr<const Tessaly::Raster>& raster)
    : VRK::Data<std::shared_ptr<const Tessaly::Raster>, VRK::NullType, VRK::NullType>(raster)
{
}

MapData::~MapData() = default;

} // namespace Maps
