#include "plugins/prim/convert/BoolToDoubleDataConverter.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/numbers/DoubleData.h"

namespace Prim {

VRK::BaseData* BoolToDoubleDataConverter::convert(const VRK::BaseData& source) const
{
    return new DoubleData(DataCast::as<BoolData>(source).getValue() ? 1.0 : 0.0);
}

} // namespace Prim
