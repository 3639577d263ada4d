#include "plugins/prim/values/keywords/LogTagWriter.h"

#include "base/log/LogTagInfo.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/keywords/LogTagEditor.h"

namespace Prim {

LogTagWriter::LogTagWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<LogTagEditor>(dataEditor))
{
}

std::ostream& LogTagWriter::write(std::ostream& out, int) const
{
    return out << VRK::LogTagInfo::getName(editor_->getLogTag());
}

} // namespace Prim
