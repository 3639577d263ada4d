#include "plugins/prim/convert/StringToFolderDataConverter.h"

#include "plugins/prim/files/FolderData.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/texts/StringData.h"

namespace Prim {

VRK::BaseData* StringToFolderDataConverter::convert(const VRK::BaseData& source) const
{
    const std::string& text = DataCast::as<StringData>(source).getValue();
    return new FolderData(CompoundFilename(PathEditor::normalisePath(text), boost::none, true));
}

} // namespace Prim
