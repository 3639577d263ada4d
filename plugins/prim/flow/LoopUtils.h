#ifndef VRK_PLUGINS_PRIM_FLOW_LOOPUTILS_H
#define VRK_PLUGINS_PRIM_FLOW_LOOPUTILS_H

#include "base/task/Task.h"
#include "plugins/prim/flow/ControlLog.h"

namespace Prim {

// What the loops share.
class LoopUtils {
public:
    // The task of the run: every pass of a loop asks it first whether the user has
    // cancelled, so a cancellation ends the loop between passes.
    static VRK::Task& currentTask();

    // Runs passes while the condition that each `pass` returns holds; each pass
    // starts with the cancellation check and `banner` at ".debug".
    template <class Pass>
    static void repeatWhile(const char* banner, Pass pass)
    {
        VRK::Task& task = currentTask();
        do {
            task.checkCancellation();
            ControlLog::log(VRK::debug, [&](std::ostream& line) { line << banner; });
        } while (pass());
    }
};

} // namespace Prim

#endif
