#ifndef VRK_PLUGINS_PRIM_CONVERT_DOUBLETOINTDATACONVERTER_H
#define VRK_PLUGINS_PRIM_CONVERT_DOUBLETOINTDATACONVERTER_H

#include "plugins/prim/convert/DoubleToIntegerDataConverter.h"

namespace Prim {

// Rounds towards minus infinity: -2.5 gives -3.
class DoubleToIntDataConverter : public DoubleToIntegerDataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override;
};

} // namespace Prim

#endif
