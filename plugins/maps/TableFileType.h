#ifndef VRK_PLUGINS_MAPS_TABLEFILETYPE_H
#define VRK_PLUGINS_MAPS_TABLEFILETYPE_H

#include "base/data/TypeShim.h"
#include "plugins/maps/TableFileData.h"

namespace Maps {

class TableFileType : public VRK::TypeShim<TableFileType, TableFileData> {
public:
    TableFileType();
    ~TableFileType() override;
};

} // namespace Maps

#endif
