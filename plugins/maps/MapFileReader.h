#ifndef VRK_PLUGINS_MAPS_MAPFILEREADER_H
#define VRK_PLUGINS_MAPS_MAPFILEREADER_H

#include "plugins/prim/files/FilenameReader.h"

namespace Maps {

// Reads the name of a map file between double quotes.
template <class ScannerT>
class MapFileReader : public Prim::FilenameReader<ScannerT> {
public:
    explicit MapFileReader(VRK::DataEditor* dataEditor);
};

extern template class MapFileReader<VRK::ScriptScanner>;
extern template class MapFileReader<VRK::PlainScanner>;

} // namespace Maps

#endif
