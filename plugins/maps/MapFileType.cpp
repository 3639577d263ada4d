#include "plugins/maps/MapFileType.h"

namespace Maps {

MapFileType::MapFileType() : VRK::TypeShim<MapFileType, MapFileData>("MapFile", "Map file") {}

MapFileType::~MapFileType() = default;

} // namespace Maps
