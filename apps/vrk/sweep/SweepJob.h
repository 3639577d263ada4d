#ifndef VRK_APPS_VRK_SWEEP_SWEEPJOB_H
#define VRK_APPS_VRK_SWEEP_SWEEPJOB_H

#include "apps/vrk/sweep/SweepOptions.h"
#include "apps/vrk/sweep/SweepTable.h"

#include <string>
#include <vector>

namespace Sweep {

// One run of a sweep as a process starts it: the run's name, its folder and the
// arguments of `vrk run` in that folder. It turns into plain words and back, so that
// another process can start it without the table.
struct SweepJob {
    std::string run;
    std::string folder;
    std::vector<std::string> arguments;

    static SweepJob of(const SweepOptions& options, const SweepTable::Row& row);
    std::vector<std::string> toWords() const;
    // The inverse of toWords.
    static SweepJob fromWords(const std::vector<std::string>& words);
};

} // namespace Sweep

#endif
