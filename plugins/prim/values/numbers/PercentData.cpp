#include "plugins/prim/values/numbers/PercentData.h"

namespace Prim {

PercentData::PercentData(double value) : DoubleData(value) {}

PercentData::~PercentData() = default;

} // namespace Prim
