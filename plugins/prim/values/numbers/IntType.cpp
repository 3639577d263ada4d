#include "plugins/prim/values/numbers/IntType.h"

namespace Prim {

IntType::IntType()
    : VRK::TypeShim<IntType, IntData>("Int", "Integer", VRK::Singleton<DoubleType>::getInstance())
{
}

IntType::~IntType() = default;

} // namespace Prim
