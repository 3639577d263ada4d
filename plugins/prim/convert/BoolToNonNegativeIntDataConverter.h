#ifndef VRK_PLUGINS_PRIM_CONVERT_BOOLTONONNEGATIVEINTDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_BOOLTONONNEGATIVEINTDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Prim {

// True is 1, false 0.
class BoolToNonNegativeIntDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
