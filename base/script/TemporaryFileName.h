#ifndef VRK_BASE_SCRIPT_TEMPORARYFILENAME_H
#define VRK_BASE_SCRIPT_TEMPORARYFILENAME_H

#include <boost/filesystem/path.hpp>

#include <sys/types.h>

namespace VRK {

// The name of the temporary file through which a target is written, beside it:
// "." + the target's name + "." + the writer's process id + "." + eight random hex
// digits + ".tmp". The target's name is shortened where the file system would refuse
// the length. The process id lets a later run tell whether the writer is gone.
class TemporaryFileName {
public:
    // A new name for a temporary file of `target`, written by this process.
    static boost::filesystem::path beside(const boost::filesystem::path& target);
    // The process id of the writer of `temporary` when it is named as a temporary file
    // of `target`; 0 otherwise.
    static pid_t writerOf(const boost::filesystem::path& temporary,
                          const boost::filesystem::path& target);
};

} // namespace VRK

#endif
