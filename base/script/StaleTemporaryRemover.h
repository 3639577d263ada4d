#ifndef VRK_BASE_SCRIPT_STALETEMPORARYREMOVER_H
#define VRK_BASE_SCRIPT_STALETEMPORARYREMOVER_H

#include <boost/filesystem/path.hpp>

namespace VRK {

// Removes the temporary files that writes of a target left behind when their process
// was killed outright (SIGKILL, a lost machine), which no handler could tidy: those
// made before this process started whose writer is gone. The temporary file of a
// process that still runs is never touched, nor one made since this process started,
// nor one whose name does not say its writer.
class StaleTemporaryRemover {
public:
    // Removes the stale temporary files of `target`. A folder that cannot be listed or a
    // file that cannot be removed is left as it is: the write goes on regardless.
    static void removeFor(const boost::filesystem::path& target);
};

} // namespace VRK

#endif
