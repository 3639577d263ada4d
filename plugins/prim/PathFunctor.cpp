#include "plugins/prim/PathFunctor.h"

#include "plugins/prim/PathType.h"

namespace Prim {

Path::Path()
    : DataCarrierFunctor("Path", "Path declarer", nullptr)
{
    addCarrierPorts(PathType::getInstance(), "Path constant", "Path object");
}

Path::~Path() = default;

} // namespace Prim
