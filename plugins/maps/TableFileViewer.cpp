#include "plugins/maps/TableFileViewer.h"

#include "plugins/maps/TableFileType.h"

template class Prim::FileKindViewer<Maps::TableFileKind>;

namespace Maps {

TableFileViewer::~TableFileViewer() = default;

} // namespace Maps
