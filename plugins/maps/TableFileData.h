#ifndef VRK_PLUGINS_MAPS_TABLEFILEDATA_H
#define VRK_PLUGINS_MAPS_TABLEFILEDATA_H

#include "plugins/maps/TableFileEditor.h"
#include "plugins/maps/TableFileKind.h"
#include "plugins/maps/TableFileViewer.h"
#include "plugins/prim/files/FileKindData.h"

namespace Maps {

// The name of a table file, held as a compound filename.
class TableFileData : public Prim::FileKindData<TableFileKind> {
public:
    using FileKindData::FileKindData;
    ~TableFileData() override;
};

} // namespace Maps

#endif
