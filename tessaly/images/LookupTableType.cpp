#include "tessaly/images/LookupTableType.h"

namespace Tessaly {

LookupTableType::LookupTableType()
    : VRK::TypeShim<LookupTableType, LookupTableData>("LookupTable", "Type of lookup tables")
{
}

LookupTableType::~LookupTableType() = default;

} // namespace Tessaly
