#ifndef VRK_APPS_VRK_SWEEP_SWEEPRUNNER_H
#define VRK_APPS_VRK_SWEEP_SWEEPRUNNER_H

#include "apps/vrk/sweep/SweepProcess.h"
#include "apps/vrk/sweep/SweepSlots.h"

#include <list>

namespace Sweep {

// Runs the jobs of a sweep as child processes of this process, `jobs` at a time.
class SweepRunner : public SweepSlots {
public:
    explicit SweepRunner(unsigned int jobs);

    bool hasRoom() const override;
    void start(const SweepJob& job) override;
    bool collect(SweepRecorder& recorder) override;
    size_t getRunning() const override;
    void cancel(SweepRecorder& recorder) override;

private:
    unsigned int jobs_;
    std::list<SweepProcess> running_;
};

} // namespace Sweep

#endif
