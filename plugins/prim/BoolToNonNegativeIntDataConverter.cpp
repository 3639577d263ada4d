#include "plugins/prim/BoolToNonNegativeIntDataConverter.h"

#include "plugins/prim/BoolData.h"
#include "plugins/prim/DataCast.h"
#include "plugins/prim/NonNegativeIntData.h"

namespace Prim {

VRK::BaseData* BoolToNonNegativeIntDataConverter::convert(const VRK::BaseData& source) const
{
    return new NonNegativeIntData(DataCast::as<BoolData>(source).getValue() ? 1 : 0);
}

} // namespace Prim
