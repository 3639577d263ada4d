#include "plugins/prim/convert/FolderToStringDataConverter.h"

#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/texts/StringData.h"

namespace Prim {

VRK::BaseData* FolderToStringDataConverter::convert(const VRK::BaseData& source) const
{
    const CompoundFilename& folder = DataCast::as<FolderData>(source).getCompoundFilename();
    return new StringData(folder.getFullFilename().string());
}

} // namespace Prim
