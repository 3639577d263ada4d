#include "plugins/prim/convert/DoubleToPositiveIntDataConverter.h"

#include "plugins/prim/values/numbers/PositiveIntData.h"

namespace Prim {

VRK::BaseData* DoubleToPositiveIntDataConverter::convert(const VRK::BaseData& source) const
{
    const double value = getDouble(source);
    const int integer = floorToInt(value, "positive integer");
    // Without quotes, unlike the range failure: both wordings are kept as users know them.
    if (integer < 1)
        raiseFailure("Failed to convert " + describe(value) + " to positive integer.");
    return new PositiveIntData(integer);
}

} // namespace Prim
