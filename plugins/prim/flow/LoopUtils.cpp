#include "plugins/prim/flow/LoopUtils.h"

#include <cassert>

namespace Prim {

VRK::Task& LoopUtils::currentTask()
{
    VRK::Task* functorTask = VRK::Task::getCurrentTask();
    assert(functorTask != 0 && "functorTask != 0");
    return *functorTask;
}

} // namespace Prim
