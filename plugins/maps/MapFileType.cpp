#include "plugins/maps/MapFileType.h"

namespace Maps {

MapFileType::MapFileType() = default;

MapFileType::~MapFileType() = default;

} // namespace Maps
