#include "plugins/prim/PositiveIntWriter.h"

#include "plugins/prim/PositiveIntEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

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
