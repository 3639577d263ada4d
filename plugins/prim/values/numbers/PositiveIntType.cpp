#include "plugins/prim/values/numbers/PositiveIntType.h"

namespace Prim {

PositiveIntType::PositiveIntType()
    : VRK::TypeShim<PositiveIntType, PositiveIntData>("PositiveInt", "Positive integer",
                                                      VRK::Singleton<IntType>::getInstance())
{
}

PositiveIntType::~PositiveIntType() = default;

} // namespace Prim
