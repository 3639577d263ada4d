#include "plugins/prim/values/texts/NameWriter.h"

#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/texts/NameEditor.h"

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
