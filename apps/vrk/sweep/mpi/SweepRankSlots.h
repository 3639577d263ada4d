#ifndef VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKSLOTS_H
#define VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKSLOTS_H

#include "apps/vrk/sweep/SweepSlots.h"
#include "apps/vrk/sweep/mpi/SweepRankLink.h"

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace Sweep {

// The ranks other than 0 of a sweep's MPI job, as rank 0 sees them: each runs `jobs`
// runs at a time, sends back each outcome and tells often that it lives, as rank 0
// tells them. A rank not heard from for some seconds is lost: its runs are recorded as
// lost with it and it gets no more.
class SweepRankSlots : public SweepSlots {
public:
    SweepRankSlots(SweepRankLink& link, unsigned int jobs);

    bool hasRoom() const override;
    // Hands the job to the living rank with the fewest runs.
    void start(const SweepJob& job) override;
    bool collect(SweepRecorder& recorder) override;
    size_t getRunning() const override;
    // Tells every living rank to stop its runs and records every run not yet back as
    // cancelled at once, since mpirun kills the ranks soon after it interrupts them.
    void cancel(SweepRecorder& recorder) override;
    // Tells every living rank that the sweep ended with `status`, which it exits with.
    void finish(int status);

private:
    using Clock = std::chrono::steady_clock;
    struct Rank {
        // The start of each run under way, by name.
        std::map<std::string, Clock::time_point> runs;
        Clock::time_point heard;
        bool lost = false;
    };

    bool take(const SweepRankLink::Message& message, SweepRecorder& recorder);
    void checkLost(SweepRecorder& recorder);
    // Records each run under way on the rank with `status` and `error`.
    void end(Rank& rank, const std::string& status, const std::string& error,
             SweepRecorder& recorder);

    SweepRankLink& link_;
    unsigned int jobs_;
    // By rank number; rank 0, this process, stays unused.
    std::vector<Rank> ranks_;
    Clock::time_point told_;
    bool cancelled_ = false;
};

} // namespace Sweep

#endif
