#ifndef VRK_PLUGINS_MAPS_TABLEFILETYPE_H
#define VRK_PLUGINS_MAPS_TABLEFILETYPE_H

#include "plugins/maps/TableFileData.h"
#include "plugins/maps/TableFileKind.h"
#include "plugins/prim/files/FileKindType.h"

namespace Maps {

class TableFileType : public Prim::FileKindType<TableFileKind> {
public:
    TableFileType();
    ~TableFileType() override;
};

} // namespace Maps

#endif
