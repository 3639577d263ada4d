#include "plugins/prim/values/numbers/PositiveIntData.h"

#include <cassert>

namespace Prim {

PositiveIntData::PositiveIntData(int value) : IntData(value) { assert(value > 0 && "value > 0"); }

PositiveIntData::~PositiveIntData() = default;

} // namespace Prim
