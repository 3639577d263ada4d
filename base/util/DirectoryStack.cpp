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

} // namespace VRK
