#ifndef VRK_PLUGINS_PRIM_CONVERT_DOUBLETOINTEGERDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_DOUBLETOINTEGERDATACONVERTER_H

#include "base/data/DataConverter.h"

#include <string>

namespace Prim {

// The common ground of the converters from reals to the integer types: the value is
// floored, and must fit a signed 32-bit integer.
class DoubleToIntegerDataConverter : public VRK::DataConverter {
public:
    // Whether a whole number fits an int.
    static bool isInIntRange(double whole);
    // A real as the messages show it: six significant digits.
    static std::string describe(double value);

protected:
    // The floored value of `source`; out of range, fails with "Failed to convert
    // "{value}" to {target}.".
    static int floorToInt(double value, const std::string& target);
    static double getDouble(const VRK::BaseData& source);
};

} // namespace Prim

#endif
