#include "plugins/prim/files/FolderReader.h"

#include "plugins/prim/files/FolderEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"
#include "plugins/prim/values/ValueReaderDefinition.h"

#include <tuple>

namespace Prim {

struct FolderReading {
    static auto arguments(VRK::DataEditor* dataEditor)
    {
        // Only a folder's editor may be read as a folder.
        PrimEditorUtils::editorOf<FolderEditor>(dataEditor);
        return std::make_tuple(dataEditor, "Folder name");
    }
};

template class ValueReader<VRK::ScriptScanner, FilenameReader, FolderReading>;
template class ValueReader<VRK::PlainScanner, FilenameReader, FolderReading>;

} // namespace Prim
