#include "plugins/prim/BoolToDoubleDataConverter.h"

#include "plugins/prim/BoolData.h"
#include "plugins/prim/DataCast.h"
#include "plugins/prim/DoubleData.h"

namespace Prim {

VRK::BaseData* BoolToDoubleDataConverter::convert(const VRK::BaseData& source) const
{
    return new DoubleData(DataCast::as<BoolData>(source).getValue() ? 1.0 : 0.0);
}

} // namespace Prim
