#include "plugins/prim/values/numbers/IntSetType.h"

namespace Prim {

IntSetType::IntSetType() : VRK::TypeShim<IntSetType, IntSetData>("IntSet", "Type of integer sets")
{
}

IntSetType::~IntSetType() = default;

} // namespace Prim
