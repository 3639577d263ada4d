#ifndef VRK_PLUGINS_PRIM_FILES_PATHTYPE_H
#define VRK_PLUGINS_PRIM_FILES_PATHTYPE_H

#include "base/data/TypeShim.h"
#include "plugins/prim/files/PathData.h"

namespace Prim {

class PathType : public VRK::TypeShim<PathType, PathData> {
public:
    PathType();
    ~PathType() override;
};

} // namespace Prim

#endif
