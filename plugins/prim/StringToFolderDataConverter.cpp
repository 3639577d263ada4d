#include "plugins/prim/StringToFolderDataConverter.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/FolderData.h"
#include "plugins/prim/PathEditor.h"
#include "plugins/prim/StringData.h"

namespace Prim {

VRK::BaseData* StringToFolderDataConverter::convert(const VRK::BaseData& source) const
{
    const std::string& text = DataCast::as<StringData>(source).getValue();
    return new FolderData(CompoundFilename(PathEditor::normalisePath(text), boost::none, true));
}

} // namespace Prim
