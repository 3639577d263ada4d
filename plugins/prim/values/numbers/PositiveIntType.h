#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_POSITIVEINTTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/numbers/IntType.h"
#include "plugins/prim/values/numbers/PositiveIntData.h"

namespace Prim {

class PositiveIntType : public VRK::TypeShim<PositiveIntType, PositiveIntData> {
public:
    PositiveIntType();
    ~PositiveIntType() override;
};

} // namespace Prim

#endif
