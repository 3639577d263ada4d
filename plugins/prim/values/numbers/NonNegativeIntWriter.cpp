#include "plugins/prim/values/numbers/NonNegativeIntWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/NonNegativeIntEditor.h"

namespace Prim {

NonNegativeIntWriter::NonNegativeIntWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor),
      editor_(&PrimEditorUtils::editorOf<NonNegativeIntEditor>(dataEditor))
{
}

std::ostream& NonNegativeIntWriter::write(std::ostream& out, int) const
{
    return out << editor_->getNonNegativeInt();
}

} // namespace Prim
