#include "plugins/prim/convert/DoubleToIntDataConverter.h"

#include "plugins/prim/values/numbers/IntData.h"

namespace Prim {

VRK::BaseData* DoubleToIntDataConverter::convert(const VRK::BaseData& source) const
{
    return new IntData(floorToInt(getDouble(source), "integer"));
}

} // namespace Prim
