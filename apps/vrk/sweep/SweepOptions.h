#ifndef VRK_APPS_VRK_SWEEP_SWEEPOPTIONS_H
#define VRK_APPS_VRK_SWEEP_SWEEPOPTIONS_H

#include <string>

namespace Sweep {

// What `vrk sweep` is told on its command line; each rank of an MPI sweep gets a copy.
struct SweepOptions {
    std::string model;
    std::string table;
    // 0 for the processor count.
    unsigned int jobs = 0;
    std::string out = "runs";
    // Skips the runs that the summary says succeeded.
    bool resume = false;
    // Passed on to every run: the memory budget in bytes (empty for the default budget
    // shared among the runs at a time), the log level and the plugin folder.
    std::string memory;
    std::string logLevel;
    std::string pluginDir;
};

} // namespace Sweep

#endif
