#include "apps/vrk/SweepCommand.h"

#include "apps/vrk/SweepSession.h"

int SweepCommand::run(const Options& options, std::ostream& out, std::ostream& err)
{
    SweepSession session(options, out, err);
    return session.readTable() ? session.run(nullptr) : 2;
}
