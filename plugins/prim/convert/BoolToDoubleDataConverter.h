#ifndef VRK_PLUGINS_PRIM_CONVERT_BOOLTODOUBLEDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_BOOLTODOUBLEDATACONVERTER_H

#include "base/data/DataConverter.h"

namespace Prim {

// True is 1, false 0.
class BoolToDoubleDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
