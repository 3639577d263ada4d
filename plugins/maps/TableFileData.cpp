#include "plugins/maps/TableFileData.h"

namespace Maps {

TableFileData::~TableFileData() = default;

} // namespace Maps
