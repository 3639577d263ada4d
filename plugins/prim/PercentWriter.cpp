#include "plugins/prim/PercentWriter.h"

#include "plugins/prim/PercentEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

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
