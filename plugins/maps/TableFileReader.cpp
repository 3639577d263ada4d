#include "plugins/maps/TableFileReader.h"

#include "plugins/maps/TableFileEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Maps {

template <class ScannerT>
TableFileReader<ScannerT>::TableFileReader(VRK::DataEditor* dataEditor)
    : Prim::FilenameReader<ScannerT>(dataEditor, "Table file name")
{
    // Only a table file's editor may be read as a table file.
    Prim::PrimEditorUtils::editorOf<TableFileEditor>(dataEditor);
}

template class TableFileReader<VRK::ScriptScanner>;
template class TableFileReader<VRK::PlainScanner>;

} // namespace Maps
