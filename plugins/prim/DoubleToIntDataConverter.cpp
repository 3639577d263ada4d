#include "plugins/prim/DoubleToIntDataConverter.h"

#include "plugins/prim/IntData.h"

namespace Prim {

VRK::BaseData* DoubleToIntDataConverter::convert(const VRK::BaseData& source) const
{
    return new IntData(floorToInt(getDouble(source), "integer"));
}

} // namespace Prim
