#ifndef VRK_PLUGINS_MAPS_MAPFILEREADER_H
#define VRK_PLUGINS_MAPS_MAPFILEREADER_H

#include "plugins/maps/MapFileKind.h"
#include "plugins/prim/files/FileKindReader.h"

namespace Maps {

// Reads the name of a map file between double quotes.
template <class ScannerT>
class MapFileReader : public Prim::FileKindReader<MapFileKind, ScannerT> {
public:
    explicit MapFileReader(VRK::DataEditor* dataEditor);
};

extern template class MapFileReader<VRK::ScriptScanner>;
extern template class MapFileReader<VRK::PlainScanner>;

} // namespace Maps

#endif
