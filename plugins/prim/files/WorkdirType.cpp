#include "plugins/prim/files/WorkdirType.h"

namespace Prim {

WorkdirType::WorkdirType() : VRK::TypeShim<WorkdirType, WorkdirData>("Workdir", "Work directory") {}

WorkdirType::~WorkdirType() = default;

} // namespace Prim
