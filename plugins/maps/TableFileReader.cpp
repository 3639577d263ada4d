#include "plugins/maps/TableFileReader.h"

#include "plugins/maps/TableFileEditor.h"

namespace Maps {

template <class ScannerT>
TableFileReader<ScannerT>::TableFileReader(VRK::DataEditor* dataEditor)
    : Prim::FileKindReader<TableFileKind, ScannerT>(dataEditor)
{
}

template class TableFileReader<VRK::ScriptScanner>;
template class TableFileReader<VRK::PlainScanner>;

} // namespace Maps
