#include "plugins/prim/files/FolderWriter.h"

#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Prim {

FolderWriter::FolderWriter(const VRK::DataEditor* dataEditor) : FilenameWriter(dataEditor)
{
    // Only a folder's editor may be written as a folder.
    PrimEditorUtils::editorOf<FolderEditor>(dataEditor);
}

} // namespace Prim
