#include "plugins/prim/values/numbers/PercentType.h"

namespace Prim {

PercentType::PercentType()
    : VRK::TypeShim<PercentType, PercentData>("Percent", "Percentual value",
                                              VRK::Singleton<DoubleType>::getInstance())
{
}

PercentType::~PercentType() = default;

} // namespace Prim
