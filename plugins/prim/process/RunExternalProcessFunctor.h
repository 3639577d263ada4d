#ifndef VRK_PLUGINS_PRIM_PROCESS_RUNEXTERNALPROCESSFUNCTOR_H
#define VRK_PLUGINS_PRIM_PROCESS_RUNEXTERNALPROCESSFUNCTOR_H

#include "base/graph/Functor.h"

namespace VRK {
class SystemProcess;
class Task;
} // namespace VRK

namespace Prim {

// Launches a program the modeller already has, and returns at once, when it ends, or
// after a number of seconds. A process left running belongs to the run, which takes it
// down when it is cancelled.
class RunExternalProcess : public VRK::Functor {
public:
    RunExternalProcess();
    RunExternalProcess(const RunExternalProcess&) = default;
    RunExternalProcess& operator=(const RunExternalProcess&) = default;
    ~RunExternalProcess() override;

    void runImpl() override;

private:
    // Both kill the process when the run is cancelled while they wait.
    static void waitForCompletion(VRK::SystemProcess& process, const VRK::Task& task);
    // Then hands a process still running over to the run.
    static void waitSeconds(VRK::SystemProcess& process, int seconds, VRK::Task& task);
    // A warning when the process has ended with a status other than 0 or by a signal.
    void reportFailure(const VRK::SystemProcess& process, const std::string& fileName) const;
};

} // namespace Prim

#endif
