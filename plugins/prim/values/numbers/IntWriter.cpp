#include "plugins/prim/values/numbers/IntWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/numbers/IntEditor.h"

namespace Prim {

IntWriter::IntWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<IntEditor>(dataEditor))
{
}

std::ostream& IntWriter::write(std::ostream& out, int) const
{
    return out << editor_->getInt();
}

} // namespace Prim
