#ifndef VRK_BASE_UTIL_DIRECTORYSTACK_H
#define VRK_BASE_UTIL_DIRECTORYSTACK_H

#include <boost/filesystem/path.hpp>

namespace VRK {

// The folder that relative paths start from. Reading a script pushes the script's
// folder, so that its relative filenames mean what they say beside the script.
class DirectoryStack {
public:
    explicit DirectoryStack(const boost::filesystem::path& directory);
    ~DirectoryStack();
    DirectoryStack(const DirectoryStack&) = delete;
    DirectoryStack& operator=(const DirectoryStack&) = delete;

    // The innermost pushed folder, or the process's current folder.
    static boost::filesystem::path getCurrentDirectory();

    // The folder of a whole run (`vrk run --workdir`); empty, the default, for none.
    static void setRunDirectory(const boost::filesystem::path& directory);
    // Where a relative name outside any work directory lies: beside the current folder
    // when something of that name exists there, else in the run's folder when there is
    // one, so that a run's outputs land in its folder and the inputs beside the script
    // are still found.
    static boost::filesystem::path resolve(const boost::filesystem::path& relative);
};

} // namespace VRK

#endif
