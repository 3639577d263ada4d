#include "plugins/prim/carriers/PathFunctor.h"

#include "plugins/prim/files/PathType.h"

namespace Prim {

Path::Path()
    : DataCarrierFunctor("Path", "Path declarer", nullptr)
{
    addCarrierPorts(PathType::getInstance(), "Path constant", "Path object");
}

Path::~Path() = default;

} // namespace Prim
