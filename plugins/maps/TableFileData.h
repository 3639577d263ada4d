#ifndef VRK_PLUGINS_MAPS_TABLEFILEDATA_H
#define VRK_PLUGINS_MAPS_TABLEFILEDATA_H

#include "base/data/Data.h"
#include "plugins/maps/TableFileEditor.h"
#include "plugins/maps/TableFileViewer.h"
#include "plugins/prim/files/CompoundFilename.h"
#include "plugins/prim/files/FilenameData.h"

namespace Maps {

// The name of a table file, held as a compound filename.
class TableFileData : public VRK::Data<Prim::CompoundFilename, TableFileViewer, TableFileEditor>,
                      public Prim::FilenameData {
public:
    TableFileData() = default;
    explicit TableFileData(const Prim::CompoundFilename& filename);
    TableFileData(const TableFileData&) = default;
    ~TableFileData() override;

    const Prim::CompoundFilename& getCompoundFilename() const override { return getValue(); }

    // How messages name a file of this kind.
    static constexpr const char* kindWord = "table file";
};

} // namespace Maps

#endif
