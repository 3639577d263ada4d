#include "plugins/prim/values/numbers/DoubleWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/DoubleEditor.h"

namespace Prim {

DoubleWriter::DoubleWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<DoubleEditor>(dataEditor))
{
}

std::ostream& DoubleWriter::write(std::ostream& out, int) const
{
    return out << editor_->getDouble();
}

} // namespace Prim
