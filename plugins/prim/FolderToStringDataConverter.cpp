#include "plugins/prim/FolderToStringDataConverter.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/FolderData.h"
#include "plugins/prim/StringData.h"

namespace Prim {

VRK::BaseData* FolderToStringDataConverter::convert(const VRK::BaseData& source) const
{
    const CompoundFilename& folder = DataCast::as<FolderData>(source).getCompoundFilename();
    return new StringData(folder.getFullFilename().string());
}

} // namespace Prim
