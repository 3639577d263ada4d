#ifndef VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKWORKER_H
#define VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKWORKER_H

#include "apps/vrk/sweep/SweepRecorder.h"
#include "apps/vrk/sweep/mpi/SweepRankLink.h"

#include <optional>

class InterruptGuard;

namespace Sweep {

class SweepRunner;
struct SweepJob;

// What a rank other than 0 does in a sweep: it runs the jobs that rank 0 sends as its
// own child processes, sends back each outcome and a sign of life every half second,
// until rank 0 ends or cancels the sweep, a signal cancels it here or rank 0 is not
// heard from for some seconds.
class SweepRankWorker : public SweepRecorder {
public:
    explicit SweepRankWorker(SweepRankLink& link);

    // Returns the status to exit with: rank 0's at the end, 128 + the signal's number
    // when cancelled.
    int run();
    void record(const std::string& run, const SweepSummary::Entry& entry) override;

private:
    std::optional<int> take(const SweepRankLink::Message& message, SweepRunner& runner,
                            const InterruptGuard& interrupt);
    void start(const SweepJob& job, SweepRunner& runner);

    SweepRankLink& link_;
};

} // namespace Sweep

#endif
