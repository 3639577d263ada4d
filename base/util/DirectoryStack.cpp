#include "base/util/DirectoryStack.h"

#include <boost/filesystem/operations.hpp>

#include <mutex>
#include <vector>

namespace VRK {

namespace {
std::mutex mutex;
std::vector<boost::filesystem::path>& stack()
{
    static std::vector<boost::filesystem::path> directories;
    return directories;
}
boost::filesystem::path& runDirectory()
{
    static boost::filesystem::path directory;
    return directory;
}
} // namespace

DirectoryStack::DirectoryStack(const boost::filesystem::path& directory)
{
    std::lock_guard<std::mutex> lock(mutex);
    stack().push_back(boost::filesystem::absolute(directory));
}

DirectoryStack::~DirectoryStack()
{
    std::lock_guard<std::mutex> lock(mutex);
    stack().pop_back();
}

boost::filesystem::path DirectoryStack::getCurrentDirectory()
{
    std::lock_guard<std::mutex> lock(mutex);
    return stack().empty() ? boost::filesystem::current_path() : stack().back();
}

void DirectoryStack::setRunDirectory(const boost::filesystem::path& directory)
{
    std::lock_guard<std::mutex> lock(mutex);
    runDirectory() = directory.empty() ? directory : boost::filesystem::absolute(directory);
}

boost::filesystem::path DirectoryStack::resolve(const boost::filesystem::path& relative)
{
    const boost::filesystem::path beside = getCurrentDirectory() / relative;
    std::lock_guard<std::mutex> lock(mutex);
    if (runDirectory().empty() || boost::filesystem::exists(beside))
        return beside;
    return runDirectory() / relative;
}

} // namespace VRK
