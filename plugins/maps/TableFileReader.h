#ifndef VRK_PLUGINS_MAPS_TABLEFILEREADER_H
#define VRK_PLUGINS_MAPS_TABLEFILEREADER_H

#include "plugins/prim/files/FilenameReader.h"

namespace Maps {

// Reads the name of a table file between double quotes.
template <class ScannerT>
class TableFileReader : public Prim::FilenameReader<ScannerT> {
public:
    explicit TableFileReader(VRK::DataEditor* dataEditor);
};

extern template class TableFileReader<VRK::ScriptScanner>;
extern template class TableFileReader<VRK::PlainScanner>;

} // namespace Maps

#endif
