#ifndef VRK_APPS_VRK_SWEEP_SWEEPPROCESS_H
#define VRK_APPS_VRK_SWEEP_SWEEPPROCESS_H

#include "apps/vrk/sweep/SweepSummary.h"

#include <chrono>
#include <string>

#include <sys/types.h>

namespace Sweep {

struct SweepJob;

// One run of a sweep: a child process of this same program in the job's folder, its
// standard output and error going to the folder's "log.txt".
class SweepProcess {
public:
    // Makes the folder and starts the job's arguments on this program; throws when the
    // folder, the log or the process cannot be made.
    explicit SweepProcess(const SweepJob& job);

    // Whether the process has ended; sets the status then. Never blocks.
    bool poll();
    // Asks the process to stop, as Ctrl-C would.
    void interrupt();
    // Waits until the process has ended.
    void wait();

    const std::string& getRun() const { return run_; }
    // The exit status, or 128 + the number of the signal that ended the process.
    int getStatus() const { return status_; }
    double getSeconds() const;
    // What the summary tells of the ended run: its status, seconds and first error.
    SweepSummary::Entry getOutcome() const;

private:
    void take(int waitStatus);

    std::string run_;
    std::string log_;
    pid_t pid_;
    int status_ = -1;
    std::chrono::steady_clock::time_point start_;
    std::chrono::steady_clock::time_point end_;
};

} // namespace Sweep

#endif
