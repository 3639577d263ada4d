#include "plugins/prim/files/WorkdirType.h"

namespace Prim {

WorkdirType::WorkdirType() : VRK::TypeShim<WorkdirType, WorkdirData>("Workdir", "Work directory") {}

WorkdirType::~WorkdirType() = default;

// Functors that read or write files take it from their enclosing `Workdir`.
bool WorkdirType::isWorkdir() const { return true; }

} // namespace Prim
