#ifndef VRK_PLUGINS_MAPS_TABLEFILEVIEWER_H
#define VRK_PLUGINS_MAPS_TABLEFILEVIEWER_H

#include "plugins/maps/TableFileKind.h"
#include "plugins/prim/files/FileKindViewer.h"

namespace Maps {

// Inspects names of table files.
class TableFileViewer : public Prim::FileKindViewer<TableFileKind> {
public:
    ~TableFileViewer() override;
};

} // namespace Maps

extern template class Prim::FileKindViewer<Maps::TableFileKind>;

#endif
