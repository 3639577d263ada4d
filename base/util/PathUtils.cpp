#include "base/util/PathUtils.h"

#include "base/util/DirectoryStack.h"

#include <boost/filesystem/operations.hpp>

#include <sstream>
#include <iomanip>
#include <unistd.h>

namespace VRK {
namespace Boost {

namespace fs = boost::filesystem;

PathUtils::path PathUtils::getRelativePath(const path& directory, const path& file)
{
    path relative = file.lexically_normal().lexically_relative(directory.lexically_normal());
    return relative.empty() ? file : relative;
}

PathUtils::path PathUtils::getRelativePath(const path& file)
{
    return getRelativePath(DirectoryStack::getCurrentDirectory(), file);
}

PathUtils::path PathUtils::changeExtension(const path& file, const std::string& extension)
{
    path changed = file;
    return changed.replace_extension(extension);
}

PathUtils::path PathUtils::generatePath(const std::string& base, size_t digits, int step,
                                        const std::string& extension)
{
    std::ostringstream name;
    name << base;
    if (step < 0)
        name << '-';
    name << std::setw(static_cast<int>(digits)) << std::setfill('0')
         << (step < 0 ? -static_cast<long long>(step) : static_cast<long long>(step)) << extension;
    return path(name.str());
}

bool PathUtils::canReadPath(const path& file)
{
    boost::system::error_code error;
    return fs::exists(file, error) && ::access(file.c_str(), R_OK) == 0;
}

bool PathUtils::canWritePath(const path& file)
{
    boost::system::error_code error;
    if (fs::exists(file, error))
        return !fs::is_directory(file, error) && ::access(file.c_str(), W_OK) == 0;
    path folder = file.has_parent_path() ? file.parent_path() : path(".");
    return fs::is_directory(folder, error) && ::access(folder.c_str(), W_OK) == 0;
}

} // namespace Boost
} // namespace VRK
