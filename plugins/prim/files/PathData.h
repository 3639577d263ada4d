#ifndef VRK_PLUGINS_PRIM_FILES_PATHDATA_H
#define VRK_PLUGINS_PRIM_FILES_PATHDATA_H

#include "base/data/PrimData.h"
#include "plugins/prim/files/PathEditor.h"
#include "plugins/prim/files/PathViewer.h"

#include <boost/filesystem/path.hpp>

namespace Prim {

// File paths.
using PathData = VRK::PrimData<boost::filesystem::path, PathViewer, PathEditor>;

} // namespace Prim

#endif
