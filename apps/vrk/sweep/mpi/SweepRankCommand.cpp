#include "apps/vrk/sweep/mpi/SweepRankCommand.h"

#include "apps/vrk/sweep/SweepSession.h"
#include "apps/vrk/sweep/mpi/SweepRankLink.h"
#include "apps/vrk/sweep/mpi/SweepRankSlots.h"
#include "apps/vrk/sweep/mpi/SweepRankWorker.h"

namespace Sweep {

int SweepRankCommand::run(const SweepOptions& options, std::ostream& out,
                          std::ostream& err)
{
    SweepOptions perRank = options;
    if (perRank.jobs == 0)
        perRank.jobs = 1;
    SweepRankLink link;
    if (link.getRank() != 0) {
        const int status = link.broadcast(0);
        return status != 0 ? status : SweepRankWorker(link).run();
    }
    SweepSession session(perRank, out, err);
    const int status = link.broadcast(session.readTable() ? 0 : 2);
    if (status != 0)
        return status;
    SweepRankSlots ranks(link, perRank.jobs);
    const int ended = session.run(&ranks);
    ranks.finish(ended);
    return ended;
}

} // namespace Sweep
