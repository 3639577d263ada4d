#ifndef VRK_PLUGINS_MAPS_TABLEFILEVIEWER_H
#define VRK_PLUGINS_MAPS_TABLEFILEVIEWER_H

#include "plugins/prim/files/FilenameViewer.h"

namespace Maps {

// Inspects names of table files.
class TableFileViewer : public Prim::FilenameViewer {
public:
    TableFileViewer();
    TableFileViewer(const TableFileViewer&) = default;
    TableFileViewer& operator=(const TableFileViewer&) = default;
    ~TableFileViewer() override;
};

} // namespace Maps

#endif
