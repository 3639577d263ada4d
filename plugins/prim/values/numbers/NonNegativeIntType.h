#ifndef VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTTYPE_H
#define VRK_PLUGINS_PRIM_VALUES_NUMBERS_NONNEGATIVEINTTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"
#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

// Deliberately under PositiveInt, not the other way round: the chain NonNegativeInt,
// PositiveInt, Int, Double is what ports of older scripts were typed against.
class NonNegativeIntType : public VRK::TypeShim<NonNegativeIntType, NonNegativeIntData> {
public:
    NonNegativeIntType();
    ~NonNegativeIntType() override;
};

} // namespace Prim

#endif
