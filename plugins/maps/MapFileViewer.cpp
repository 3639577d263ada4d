#include "plugins/maps/MapFileViewer.h"

#include "plugins/maps/MapFileType.h"

namespace Maps {

MapFileViewer::MapFileViewer()
    : Prim::FilenameViewer("MapFileViewer", "Viewer for inspecting map file names",
                           MapFileType::getInstance())
{
}

MapFileViewer::~MapFileViewer() = default;

} // namespace Maps
