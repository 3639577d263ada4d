#ifndef VRK_PLUGINS_MAPS_MAPFILEDATA_H
#define VRK_PLUGINS_MAPS_MAPFILEDATA_H

#include "base/data/Data.h"
#include "plugins/maps/MapFileEditor.h"
#include "plugins/maps/MapFileViewer.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/FilenameData.h"

namespace Maps {

// The name of a map file, held as a compound filename.
class MapFileData : public VRK::Data<Prim::CompoundFilename, MapFileViewer, MapFileEditor>,
                    public Prim::FilenameData {
public:
    MapFileData() = default;
    explicit MapFileData(const Prim::CompoundFilename& filename);
    MapFileData(const MapFileData&) = default;
    ~MapFileData() override;

    const Prim::CompoundFilename& getCompoundFilename() const override { return getValue(); }

    // How messages name a file of this kind.
    static constexpr const char* kindWord = "map file";
};

} // namespace Maps

#endif
