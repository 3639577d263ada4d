#include "plugins/prim/BoolToIntDataConverter.h"

#include "plugins/prim/BoolData.h"
#include "plugins/prim/DataCast.h"
#include "plugins/prim/IntData.h"

namespace Prim {

VRK::BaseData* BoolToIntDataConverter::convert(const VRK::BaseData& source) const
{
    return new IntData(DataCast::as<BoolData>(source).getValue() ? 1 : 0);
}

} // namespace Prim
