#include "plugins/maps/MapFileReader.h"

#include "plugins/maps/MapFileEditor.h"

namespace Maps {

template <class ScannerT>
MapFileReader<ScannerT>::MapFileReader(VRK::DataEditor* dataEditor)
    : Prim::FileKindReader<MapFileKind, ScannerT>(dataEditor)
{
}

template class MapFileReader<VRK::ScriptScanner>;
template class MapFileReader<VRK::PlainScanner>;

} // namespace Maps
