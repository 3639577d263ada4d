#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/numbers/DoubleType.h"
#include "plugins/prim/values/numbers/IntData.h"

namespace Prim {

class IntType : public VRK::TypeShim<IntType, IntData> {
public:
    IntType();
    ~IntType() override;
};

} // namespace Prim

#endif
