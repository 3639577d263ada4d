#ifndef VRK_PLUGINS_PRIM_CONVERT_DOUBLETOPOSITIVEINTDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_DOUBLETOPOSITIVEINTDATACONVERTER_H

#include "plugins/prim/convert/DoubleToIntegerDataConverter.h"

namespace Prim {

// Rounds towards minus infinity, so 0.99 is refused and 1.5 gives 1.
class DoubleToPositiveIntDataConverter : public DoubleToIntegerDataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
