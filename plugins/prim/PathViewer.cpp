#include "plugins/prim/PathViewer.h"

#include "plugins/prim/DataCast.h"
#include "plugins/prim/PathType.h"

namespace Prim {

PathViewer::PathViewer()
    : VRK::DataViewer("PathViewer", "Viewer for file paths", PathType::getInstance())
{
}

PathViewer::~PathViewer() = default;

const boost::filesystem::path& PathViewer::getPath() const
{
    return DataCast::as<PathData>(getData()).getValue();
}

} // namespace Prim
