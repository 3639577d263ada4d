#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_PERCENTTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "plugins/prim/values/numbers/PercentData.h"

namespace Prim {

class PercentType : public VRK::TypeShim<PercentType, PercentData> {
public:
    PercentType();
    ~PercentType() override;
};

} // namespace Prim

#endif
