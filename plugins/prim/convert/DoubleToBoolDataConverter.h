#ifndef VRK_PLUGINS_PRIM_CONVERT_DOUBLETOBOOLDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_DOUBLETOBOOLDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Prim {

// Only a value that is zero up to rounding error is false.
class DoubleToBoolDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
