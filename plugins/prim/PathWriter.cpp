#include "plugins/prim/PathWriter.h"

#include "plugins/prim/PathEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

PathWriter::PathWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<PathEditor>(dataEditor))
{
}

std::ostream& PathWriter::write(std::ostream& out, int) const
{
    return out << '"' << PathEditor::denormalisePath(editor_->getRelativePath().generic_string())
               << '"';
}

} // namespace Prim
