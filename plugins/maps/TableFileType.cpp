#include "plugins/maps/TableFileType.h"

namespace Maps {

TableFileType::TableFileType()
    : VRK::TypeShim<TableFileType, TableFileData>("TableFile", "Table file")
{
}

TableFileType::~TableFileType() = default;

} // namespace Maps
