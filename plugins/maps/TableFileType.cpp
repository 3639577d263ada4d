#include "plugins/maps/TableFileType.h"

namespace Maps {

TableFileType::TableFileType() = default;

TableFileType::~TableFileType() = default;

} // namespace Maps
