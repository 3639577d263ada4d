#include "plugins/prim/NameWriter.h"

#include "plugins/prim/NameEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

NameWriter::NameWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<NameEditor>(dataEditor))
{
}

std::ostream& NameWriter::write(std::ostream& out, int) const
{
    return out << '"' << editor_->getName() << '"';
}

} // namespace Prim
