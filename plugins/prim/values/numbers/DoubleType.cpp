#include "plugins/prim/values/numbers/DoubleType.h"

namespace Prim {

DoubleType::DoubleType() : VRK::TypeShim<DoubleType, DoubleData>("Double", "Double precision real")
{
}

DoubleType::~DoubleType() = default;

} // namespace Prim
