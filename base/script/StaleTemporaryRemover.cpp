#include "base/script/StaleTemporaryRemover.h"

#include "base/script/TemporaryFileName.h"

#include <boost/filesystem/operations.hpp>

#include <cerrno>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include <signal.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace VRK {

namespace {

namespace fs = boost::filesystem;

timespec now()
{
    timespec time{};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return time;
}

// When this process began writing files, near enough: the host library is loaded with
// the program.
const timespec processStart = now();

bool isOlderThanThisProcess(const fs::path& file)
{
    struct stat status {};
    if (::lstat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const timespec& modified = status.st_mtim;
    return modified.tv_sec < processStart.tv_sec
           || (modified.tv_sec == processStart.tv_sec && modified.tv_nsec < processStart.tv_nsec);
}

bool isGone(pid_t writer)
{
    return writer != ::getpid() && ::kill(writer, 0) != 0 && errno == ESRCH;
}

// Hidden ".tmp" files older than this process, of every folder written so far. A folder
// is listed once: files made later are younger than this process and not stale, so a
// loop that writes thousands of files into one folder lists it once, not each time.
class Candidates {
public:
    std::vector<fs::path> takeFor(const fs::path& target)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        const fs::path folder = target.parent_path().empty() ? fs::path(".") : target.parent_path();
        auto listed = folders_.find(folder.string());
        if (listed == folders_.end())
            listed = folders_.emplace(folder.string(), list(folder)).first;
        std::vector<fs::path> taken;
        std::vector<fs::path>& files = listed->second;
        for (auto file = files.begin(); file != files.end();)
            if (TemporaryFileName::writerOf(*file, target) != 0) {
                taken.push_back(*file);
                file = files.erase(file);
            } else {
                ++file;
            }
        return taken;
    }

private:
    static std::vector<fs::path> list(const fs::path& folder)
    {
        std::vector<fs::path> files;
        boost::system::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            const std::string name = entry->path().filename().string();
            if (name.size() > 5 && name[0] == '.' && name.compare(name.size() - 4, 4, ".tmp") == 0
                && isOlderThanThisProcess(entry->path()))
                files.push_back(entry->path());
        }
        return files;
    }

    std::mutex mutex_;
    std::map<std::string, std::vector<fs::path>> folders_;
};

Candidates candidates;

} // namespace

void StaleTemporaryRemover::removeFor(const fs::path& target)
{
    for (const fs::path& temporary : candidates.takeFor(target))
        if (isGone(TemporaryFileName::writerOf(temporary, target))) {
            boost::system::error_code ignored;
            fs::remove(temporary, ignored);
        }
}

} // namespace VRK
