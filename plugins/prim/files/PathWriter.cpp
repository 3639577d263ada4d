#include "plugins/prim/files/PathWriter.h"

#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Prim {

PathWriter::PathWriter(const VRK::DataEditor* dataEditor)
    : VRK::DataWriter(dataEditor), editor_(&PrimEditorUtils::editorOf<PathEditor>(dataEditor))
{
}

std::ostream& PathWriter::write(std::ostream& out, int) const
{
    // A complete path stays as the modeller wrote it, wherever the script is written.
    const PathEditor::path& value = editor_->getPath();
    const PathEditor::path written = value.is_absolute() ? value : editor_->getRelativePath();
    return out << '"' << PathEditor::denormalisePath(written.generic_string()) << '"';
}

} // namespace Prim
