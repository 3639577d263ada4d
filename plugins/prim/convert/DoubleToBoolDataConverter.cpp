#include "plugins/prim/convert/DoubleToBoolDataConverter.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/numbers/DoubleData.h"

#include <cmath>

namespace Prim {

namespace {

const double Tolerance = 1e-9;

// Close in absolute terms near zero, in relative terms elsewhere. NaN equals nothing.
bool approximatelyEqual(double a, double b)
{
    const double difference = a - b;
    if (std::fabs(difference) <= Tolerance)
        return true;
    const double larger = std::fabs(a) > std::fabs(b) ? a : b;
    return std::fabs(difference / larger) <= Tolerance;
}

} // namespace

VRK::BaseData* DoubleToBoolDataConverter::convert(const VRK::BaseData& source) const
{
    return new BoolData(!approximatelyEqual(DataCast::as<DoubleData>(source).getValue(), 0.0));
}

} // namespace Prim
