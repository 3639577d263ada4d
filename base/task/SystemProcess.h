#ifndef VRK_BASE_TASK_SYSTEMPROCESS_H
#define VRK_BASE_TASK_SYSTEMPROCESS_H

#include "base/task/Cancellable.h"

#include <memory>
#include <string>
#include <sys/types.h>

namespace VRK {

// An external process, started without a shell on construction, as the leader of a
// process group of its own. A process that is still running when its object goes is
// killed, unless it was detached.
class SystemProcess {
public:
    enum ProcessStatus { running = 0, finished = 1 };

    // Starts `executable` (searched on PATH when it has no slash) with the arguments
    // of `parameters`, split as a shell splits words. Throws a RuntimeException when
    // the process cannot be started.
    SystemProcess(const std::string& executable, const std::string& parameters);
    ~SystemProcess();
    SystemProcess(const SystemProcess&) = delete;
    SystemProcess& operator=(const SystemProcess&) = delete;

    ProcessStatus getStatus();
    // Waits at most `milliseconds`; true when the process is still running then.
    bool wait(unsigned int milliseconds);
    // SIGTERM to the process's group, then SIGKILL to what is left of the group after a
    // short grace period.
    void kill();
    // Hands the process over to `owner` (a task's worker), which reaps it and kills it
    // when it is cancelled.
    void detach(Cancellable* owner);

    int getExitCode() const { return exitCode_; }
    // How the process ended, for a report: "exited with status 3" or "was ended by
    // signal 9 (Killed)". Empty while it runs, when it exited with status 0, and when
    // kill() ended it.
    std::string describeFailure() const;
    pid_t getPid() const { return pid_; }

private:
    bool reap(bool block);
    // Whether the process ends within `milliseconds`; it is left unreaped.
    bool endsWithin(unsigned int milliseconds) const;

    pid_t pid_ = -1;
    bool ended_ = false;
    bool detached_ = false;
    bool killed_ = false;
    int exitCode_ = -1;
    int status_ = 0; // as waitpid reported it
};

} // namespace VRK

#endif
