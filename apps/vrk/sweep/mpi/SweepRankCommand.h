#ifndef VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKCOMMAND_H
#define VRK_APPS_VRK_SWEEP_MPI_SWEEPRANKCOMMAND_H

#include "apps/vrk/sweep/SweepOptions.h"

#include <ostream>

namespace Sweep {

// `mpirun -np K vrk sweep MODEL TABLE`: rank 0 reads and checks the table, hands the
// rows out to every rank as it has room, itself included, and keeps the summary and the
// progress; the other ranks run what they are given. `--jobs` counts the runs at a time
// of each rank (default 1, since mpirun starts one rank per processor).
class SweepRankCommand {
public:
    // Returns the exit status, the same on every rank but when a signal cancels one.
    static int run(const SweepOptions& options, std::ostream& out, std::ostream& err);
};

} // namespace Sweep

#endif
