#include "plugins/prim/FolderReader.h"

#include "plugins/prim/FolderEditor.h"
#include "plugins/prim/PrimEditorUtils.h"

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
