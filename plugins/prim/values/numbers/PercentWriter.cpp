#include "plugins/prim/values/numbers/PercentWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/PercentEditor.h"

namespace Prim {

PercentWriter::PercentWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<PercentEditor>(dataEditor))
{
}

std::ostream& PercentWriter::write(std::ostream& out, int) const
{
    return out << editor_->getPercent();
}

} // namespace Prim
