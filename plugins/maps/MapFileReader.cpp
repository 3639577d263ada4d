#include "plugins/maps/MapFileReader.h"

#include "plugins/maps/MapFileEditor.h"
#include "plugins/prim/values/PrimEditorUtils.h"

namespace Maps {

template <class ScannerT>
MapFileReader<ScannerT>::MapFileReader(VRK::DataEditor* dataEditor)
    : Prim::FilenameReader<ScannerT>(dataEditor, "Map file name")
{
    // Only a map file's editor may be read as a map file.
    Prim::PrimEditorUtils::editorOf<MapFileEditor>(dataEditor);
}

template class MapFileReader<VRK::ScriptScanner>;
template class MapFileReader<VRK::PlainScanner>;

} // namespace Maps
