#include "plugins/prim/convert/DoubleToNonNegativeIntDataConverter.h"

#include "plugins/prim/values/numbers/NonNegativeIntData.h"

namespace Prim {

VRK::BaseData* DoubleToNonNegativeIntDataConverter::convert(const VRK::BaseData& source) const
{
    const double value = getDouble(source);
    const int integer = floorToInt(value, "non-negative integer");
    // Worded with "a", unlike the range failure: both wordings are kept as users know them.
    if (integer < 0)
        raiseFailure("Failed to convert \"" + describe(value) + "\" to a non-negative integer.");
    return new NonNegativeIntData(integer);
}

} // namespace Prim
