#include "plugins/maps/TableFileViewer.h"

#include "plugins/maps/TableFileType.h"

namespace Maps {

TableFileViewer::TableFileViewer()
    : Prim::FilenameViewer("TableFileViewer", "Viewer for inspecting table file names",
                           TableFileType::getInstance())
{
}

TableFileViewer::~TableFileViewer() = default;

} // namespace Maps
