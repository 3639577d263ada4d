#ifndef VRK_BASE_UTIL_PATHUTILS_H
#define VRK_BASE_UTIL_PATHUTILS_H

#include <boost/filesystem/path.hpp>

#include <string>

namespace VRK {
namespace Boost {

class PathUtils {
public:
    using path = boost::filesystem::path;

    // A path that, joined to `directory`, names `file`; `file` itself when the two
    // share no root.
    static path getRelativePath(const path& directory, const path& file);
    // The same against the current directory.
    static path getRelativePath(const path& file);
    // `file` with its extension replaced by `extension` ("" removes it).
    static path changeExtension(const path& file, const std::string& extension);
    // `base`, then `step` written with at least `digits` digits, then `extension`:
    // ("out", 3, 7, ".txt") gives "out007.txt".
    static path generatePath(const std::string& base, size_t digits, int step,
                             const std::string& extension);
    static bool canReadPath(const path& file);
    // True when the file exists and is writable, or could be created in its folder.
    static bool canWritePath(const path& file);
};

} // namespace Boost
} // namespace VRK

#endif
