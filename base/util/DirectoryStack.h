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
};

} // namespace VRK

#endif
