#ifndef VRK_PLUGINS_PRIM_FILES_STRINGTOFILENAMEDATACONVERTER_H
#define VRK_PLUGINS_PRIM_FILES_STRINGTOFILENAMEDATACONVERTER_H

#include "base/data/DataConverter.h"
#include "base/error/ExceptionUtils.h"
#include "base/error/IllegalDataException.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/values/DataCast.h"
#include "plugins/prim/values/texts/StringData.h"

#include <string>

namespace Prim {

// Names a file of a plugin's kind by a string that another functor built (a numbered
// name, say). The name stays relative, to be resolved against the work directory of the
// functor that receives it. `FileDataT` is a filename datum over a CompoundFilename and
// has a static `kindWord`, such as "text file", for the message that refuses a name.
template <class FileDataT>
class StringToFilenameDataConverter : public VRK::DataConverter {
public:
    VRK::BaseData* convert(const VRK::BaseData& source) const override
    {
        const std::string& text = DataCast::as<StringData>(source).getValue();
        if (text.empty())
            VRK::ExceptionUtils::raise<VRK::IllegalDataException>(
                std::string("The ") + FileDataT::kindWord + " \"\" is not valid.");
        return new FileDataT(CompoundFilename(PathEditor::normalisePath(text), boost::none, true));
    }
};

} // namespace Prim

#endif
