#include "plugins/prim/files/PathViewer.h"

#include "plugins/prim/files/PathType.h"
#include "plugins/prim/values/DataCast.h"

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
