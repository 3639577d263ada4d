#ifndef VRK_APPS_VRK_SWEEPCOMMAND_H
#define VRK_APPS_VRK_SWEEPCOMMAND_H

#include <ostream>
#include <string>

// `vrk sweep MODEL TABLE`: one `vrk run MODEL --workdir OUT/<run> --set ...` per row of
// the table, `jobs` at a time, each run's output in OUT/<run>/log.txt and its outcome
// in OUT/summary.csv. The whole table is checked against the model before any run.
// Started by mpirun on more than one rank, it spreads the rows over the ranks when vrk
// was built with MPI, and refuses to start otherwise.
class SweepCommand {
public:
    struct Options {
        std::string model;
        std::string table;
        // 0 for the processor count.
        unsigned int jobs = 0;
        std::string out = "runs";
        // Skips the runs that the summary says succeeded.
        bool resume = false;
        // Passed on to every run: the memory budget in bytes, empty for the default.
        std::string memory;
        std::string logLevel;
        std::string pluginDir;
    };

    // Returns the exit status: 0 every run succeeded, 1 some failed, 2 the model or the
    // table is invalid, 130 cancelled by SIGINT (143 by SIGTERM).
    static int run(const Options& options, std::ostream& out, std::ostream& err);
};

#endif
