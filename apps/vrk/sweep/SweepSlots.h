#ifndef VRK_APPS_VRK_SWEEP_SWEEPSLOTS_H
#define VRK_APPS_VRK_SWEEP_SWEEPSLOTS_H

#include <cstddef>

namespace Sweep {

class SweepRecorder;
struct SweepJob;

// Places where the runs of a sweep go: the child processes of this process, or the
// other ranks of an MPI job. The sweep hands a job to the first that has room.
class SweepSlots {
public:
    virtual ~SweepSlots() = default;

    virtual bool hasRoom() const = 0;
    virtual void start(const SweepJob& job) = 0;
    // Records the runs that ended; true when any did. Never blocks.
    virtual bool collect(SweepRecorder& recorder) = 0;
    virtual size_t getRunning() const = 0;
    // Stops the runs under way and records them as cancelled, but for a run that
    // succeeded before it heard of it, which keeps its success.
    virtual void cancel(SweepRecorder& recorder) = 0;
};

} // namespace Sweep

#endif
