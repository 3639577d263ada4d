#include "plugins/prim/values/numbers/NonNegativeIntType.h"

namespace Prim {

NonNegativeIntType::NonNegativeIntType()
    : VRK::TypeShim<NonNegativeIntType, NonNegativeIntData>(
        "NonNegativeInt", "Non-negative integer", VRK::Singleton<PositiveIntType>::getInstance())
{
}

NonNegativeIntType::~NonNegativeIntType() = default;

} // namespace Prim
