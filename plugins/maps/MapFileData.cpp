#include "plugins/maps/MapFileData.h"

namespace Maps {

MapFileData::~MapFileData() = default;

} // namespace Maps
