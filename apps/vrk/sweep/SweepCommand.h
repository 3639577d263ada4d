#ifndef VRK_APPS_VRK_SWEEP_SWEEPCOMMAND_H
#define VRK_APPS_VRK_SWEEP_SWEEPCOMMAND_H

#include "apps/vrk/sweep/SweepOptions.h"

#include <ostream>

namespace Sweep {

// `vrk sweep MODEL TABLE`: one `vrk run MODEL --workdir OUT/<run> --set ...` per row of
// the table, `jobs` at a time, each run's output in OUT/<run>/log.txt and its outcome
// in OUT/summary.csv. The whole table is checked against the model before any run.
// Started by mpirun on more than one rank, it spreads the rows over the ranks when vrk
// was built with MPI, and refuses to start otherwise.
class SweepCommand {
public:
    // Returns the exit status: 0 every run succeeded, 1 some failed, 2 the model or the
    // table is invalid, 130 cancelled by SIGINT (143 by SIGTERM).
    static int run(const SweepOptions& options, std::ostream& out, std::ostream& err);
};

} // namespace Sweep

#endif
