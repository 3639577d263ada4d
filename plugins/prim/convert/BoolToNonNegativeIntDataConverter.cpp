#include "plugins/prim/convert/BoolToNonNegativeIntDataConverter.h"

#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/keywords/BoolData.h"
#include "plugins/prim/values/numbers/NonNegativeIntData.h"

namespace Prim {

VRK::BaseData* BoolToNonNegativeIntDataConverter::convert(const VRK::BaseData& source) const
{
    return new NonNegativeIntData(DataCast::as<BoolData>(source).getValue() ? 1 : 0);
}

} // namespace Prim
