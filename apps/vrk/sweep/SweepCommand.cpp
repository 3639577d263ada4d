#include "apps/vrk/sweep/SweepCommand.h"

#include "apps/vrk/sweep/SweepSession.h"

#ifdef VRK_MPI
#include "apps/vrk/sweep/mpi/SweepRankCommand.h"
#endif

#include <cstdlib>
#include <string>

namespace Sweep {

namespace {

// mpirun tells each process it starts the size of the job and its rank there; a process
// started otherwise sees none, and never sets MPI up.
int fromMpirun(const char* variable)
{
    const char* value = std::getenv(variable);
    return value ? std::atoi(value) : 0;
}

} // namespace

int SweepCommand::run(const SweepOptions& options, std::ostream& out, std::ostream& err)
{
    if (fromMpirun("OMPI_COMM_WORLD_SIZE") > 1) {
#ifdef VRK_MPI
        return SweepRankCommand::run(options, out, err);
#else
        if (fromMpirun("OMPI_COMM_WORLD_RANK") == 0)
            err << "vrk: error: This vrk was built without MPI, so it cannot spread a sweep "
                   "over the ranks of mpirun; run the sweep without mpirun.\n";
        return 2;
#endif

    }
    SweepSession session(options, out, err);
    return session.readTable() ? session.run(nullptr) : 2;
}

} // namespace Sweep
