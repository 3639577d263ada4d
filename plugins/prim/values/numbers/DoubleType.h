#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLETYPE_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_DOUBLETYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/numbers/DoubleData.h"

namespace Prim {

class DoubleType : public VRK::TypeShim<DoubleType, DoubleData> {
public:
    DoubleType();
    ~DoubleType() override;
};

} // namespace Prim

#endif
