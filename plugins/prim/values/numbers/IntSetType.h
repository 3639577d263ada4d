#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_INTSETTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/numbers/IntSetData.h"

namespace Prim {

class IntSetType : public VRK::TypeShim<IntSetType, IntSetData> {
public:
    IntSetType();
    ~IntSetType() override;
};

} // namespace Prim

#endif
