#include "plugins/prim/values/numbers/PositiveIntWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/PositiveIntEditor.h"

namespace Prim {

PositiveIntWriter::PositiveIntWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor),
      editor_(&PrimEditorUtils::editorOf<PositiveIntEditor>(dataEditor))
{
}

std::ostream& PositiveIntWriter::write(std::ostream& out, int) const
{
    return out << editor_->getPositiveInt();
}

} // namespace Prim
