#include "plugins/prim/files/FolderReader.h"

#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Prim {

template <class ScannerT>
FolderReader<ScannerT>::FolderReader(VRK::DataEditor* dataEditor)
    : FilenameReader<ScannerT>(dataEditor, "Folder name")
{
    // Only a folder's editor may be read as a folder.
    PrimEditorUtils::editorOf<FolderEditor>(dataEditor);
}

template class FolderReader<VRK::ScriptScanner>;
template class FolderReader<VRK::PlainScanner>;

} // namespace Prim
