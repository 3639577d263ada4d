#include "plugins/maps/MapFileViewer.h"

#include "plugins/maps/MapFileType.h"

template class Prim::FileKindViewer<Maps::MapFileKind>;

namespace Maps {

MapFileViewer::~MapFileViewer() = default;

} // namespace Maps
