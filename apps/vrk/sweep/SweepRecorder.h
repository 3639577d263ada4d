#ifndef VRK_APPS_VRK_SWEEP_SWEEPRECORDER_H
#define VRK_APPS_VRK_SWEEP_SWEEPRECORDER_H

#include "apps/vrk/sweep/SweepSummary.h"

#include <string>

namespace Sweep {

// Where the runs of a sweep are told as they end: the summary and the progress of the
// process that owns them, or the message that carries them to it.
class SweepRecorder {
public:
    virtual ~SweepRecorder() = default;
    virtual void record(const std::string& run, const SweepSummary::Entry& entry) = 0;
};

} // namespace Sweep

#endif
