#include "plugins/prim/values/numbers/NonNegativeIntData.h"

#include <cassert>

namespace Prim {

NonNegativeIntData::NonNegativeIntData(int value) : IntData(value)
{
    assert(value >= 0 && "value >= 0");
}

NonNegativeIntData::~NonNegativeIntData() = default;

} // namespace Prim
