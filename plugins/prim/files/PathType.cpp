#include "plugins/prim/files/PathType.h"

namespace Prim {

PathType::PathType() : VRK::TypeShim<PathType, PathData>("Path", "File path") {}

PathType::~PathType() = default;

} // namespace Prim
