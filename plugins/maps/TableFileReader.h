#ifndef VRK_PLUGINS_MAPS_TABLEFILEREADER_H
#define VRK_PLUGINS_MAPS_TABLEFILEREADER_H

#include "plugins/maps/TableFileKind.h"
#include "plugins/prim/files/FileKindReader.h"

namespace Maps {

// Reads the name of a table file between double quotes.
template <class ScannerT>
class TableFileReader : public Prim::FileKindReader<TableFileKind, ScannerT> {
public:
    explicit TableFileReader(VRK::DataEditor* dataEditor);
};

extern template class TableFileReader<VRK::ScriptScanner>;
extern template class TableFileReader<VRK::PlainScanner>;

} // namespace Maps

#endif
