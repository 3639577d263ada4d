#include "plugins/maps/MapType.h"

namespace Maps {

MapType::MapType() : VRK::TypeShim<MapType, MapData>("Map", "Type of raster maps") {}

MapType::~MapType() = default;

} // namespace Maps
