#ifndef VRK_APPS_VRK_RUNCOMMAND_H
#define VRK_APPS_VRK_RUNCOMMAND_H

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

// `vrk run SCRIPT`: reads the script, applies the modeller's parameters, verifies it
// and runs it. Log lines go to standard output as the run writes them; errors go to
// `err` as diagnostics, a run error naming the functor that failed.
class RunCommand {
public:
    struct Options {
        std::string script;
        // "sequential", "parallel" or "auto".
        std::string scheduler = "auto";
        // The processor count for the run; 0 for every hardware thread.
        std::optional<unsigned int> processors;
        // The bytes that maps may hold in memory; beyond, they go to temporary files.
        std::optional<std::uint64_t> memory;
        // "alias.port=VALUE" assignments, applied after the parameter file.
        std::vector<std::string> assignments;
        std::string parameterFile;
        // The folder that relative outputs go to, created when missing; empty for none.
        std::string workdir;
    };

    // The scheduler names that `Options::scheduler` accepts.
    static std::vector<std::string> getSchedulerChoices();

    // Returns the exit status: 0 done, 1 the run failed, 2 the script or a parameter is
    // invalid, 130 cancelled by SIGINT. The log filter and the processor count of the
    // calling thread are what they were before, whatever the outcome.
    static int run(const Options& options, std::ostream& err);
};

#endif
