#include "plugins/maps/MapData.h"

namespace Maps {

MapData::MapData(const std::shared_ptr<const Tessaly::RasterSource>& map)
    : VRK::Data<std::shared_ptr<const Tessaly::RasterSource>, VRK::NullType, VRK::NullType>(map)
{
}

MapData::~MapData() = default;

} // namespace Maps
