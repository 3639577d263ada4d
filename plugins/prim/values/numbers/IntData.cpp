#include "plugins/prim/values/numbers/IntData.h"

namespace Prim {

IntData::IntData(int value)
    : VRK::PrimData<int, IntViewer, IntEditor>(value), DoubleData(static_cast<double>(value))
{
}

IntData::~IntData() = default;

} // namespace Prim
