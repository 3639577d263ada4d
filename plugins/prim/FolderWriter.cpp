#include "plugins/prim/FolderWriter.h"

#include "plugins/prim/FolderEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

namespace Prim {

FolderWriter::FolderWriter(const VRK::DataEditor* dataEditor) : FilenameWriter(dataEditor)
{
    // Only a folder's editor may be written as a folder.
    PrimEditorUtils::editorOf<FolderEditor>(dataEditor);
}

} // namespace Prim
