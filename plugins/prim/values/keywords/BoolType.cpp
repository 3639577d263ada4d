#include "plugins/prim/values/keywords/BoolType.h"

namespace Prim {

BoolType::BoolType() : VRK::TypeShim<BoolType, BoolData>("Bool", "Boolean") {}

BoolType::~BoolType() = default;

} // namespace Prim
