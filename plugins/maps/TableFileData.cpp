#include "plugins/maps/TableFileData.h"

namespace Maps {

TableFileData::TableFileData(const Prim::CompoundFilename& filename)
    : VRK::Data<Prim::CompoundFilename, TableFileViewer, TableFileEditor>(filename)
{
}

TableFileData::~TableFileData() = default;

} // namespace Maps
