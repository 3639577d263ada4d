#include "plugins/prim/convert/BoolToIntDataConverter.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/numbers/IntData.h"

namespace Prim {

VRK::BaseData* BoolToIntDataConverter::convert(const VRK::BaseData& source) const
{
    return new IntData(DataCast::as<BoolData>(source).getValue() ? 1 : 0);
}

} // namespace Prim
