#include "plugins/prim/convert/DoubleToIntegerDataConverter.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/numbers/DoubleData.h"

#include <cmath>
#include <sstream>

namespace Prim {

bool DoubleToIntegerDataConverter::isInIntRange(double whole)
{
    // False for NaN as well.
    return whole > -2147483649.0 && whole < 2147483648.0;
}

std::string DoubleToIntegerDataConverter::describe(double value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

int DoubleToIntegerDataConverter::floorToInt(double value, const std::string& target)
{
    const double floored = std::floor(value);
    if (!isInIntRange(floored))
        raiseFailure("Failed to convert \"" + describe(value) + "\" to " + target + ".");
    return static_cast<int>(floored);
}

double DoubleToIntegerDataConverter::getDouble(const VRK::BaseData& source)
{
    return DataCast::as<DoubleData>(source).getValue();
}

} // namespace Prim
