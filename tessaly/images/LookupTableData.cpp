#include "tessaly/images/LookupTableData.h"

namespace Tessaly {

LookupTableData::LookupTableData(const std::shared_ptr<const LookupTable>& table)
    : VRK::Data<std::shared_ptr<const LookupTable>, VRK::NullType, VRK::NullType>(table)
{
}

LookupTableData::~LookupTableData() = default;

} // namespace Tessaly
