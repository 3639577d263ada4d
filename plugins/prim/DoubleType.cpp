#include "plugins/prim/DoubleType.h"

namespace Prim {

DoubleType::DoubleType() : VRK::TypeShim<DoubleType, DoubleData>("Double", "Double precision real")
{
}

DoubleType::~DoubleType() = default;

} // namespace Prim
