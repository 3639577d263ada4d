#include "plugins/io/StringToTextFileDataConverter.h"

#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "plugins/io/TextFileData.h"
#include "plugins/prim/DataCast.h"
#include "plugins/prim/PathEditor.h"
#include "plugins/prim/StringData.h"

namespace Io {

VRK::BaseData* StringToTextFileDataConverter::convert(const VRK::BaseData& source) const
{
    const std::string& text = Prim::DataCast::as<Prim::StringData>(source).getValue();
    if (text.empty())
        VRK::ExceptionUtils::raise<VRK::IllegalDataException>("The text file \"\" is not valid.");
    return new TextFileData(
        Prim::CompoundFilename(Prim::PathEditor::normalisePath(text), boost::none, true));
}

} // namespace Io
