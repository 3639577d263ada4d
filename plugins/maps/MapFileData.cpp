#include "plugins/maps/MapFileData.h"

namespace Maps {

MapFileData::MapFileData(const Prim::CompoundFilename& filename)
    : VRK::Data<Prim::CompoundFilename, MapFileViewer, MapFileEditor>(filename)
{
}

MapFileData::~MapFileData() = default;

} // namespace Maps
