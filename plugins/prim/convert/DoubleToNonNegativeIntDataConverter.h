#ifndef VRK_PLUGINS_PRIM_CONVERT_DOUBLETONONNEGATIVEINTDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_DOUBLETONONNEGATIVEINTDATACONVERTER_H

#include "plugins/prim/convert/DoubleToIntegerDataConverter.h"

namespace Prim {

// Rounds towards minus infinity, so -0.1 is refused and 0.9 gives 0.
class DoubleToNonNegativeIntDataConverter : public DoubleToIntegerDataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
