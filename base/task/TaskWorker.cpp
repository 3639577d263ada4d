#include "base/task/TaskWorker.h"

#include <algorithm>
#include <signal.h>
#include <sys/wait.h>

namespace VRK {

TaskWorker::~TaskWorker() { reapFinished(); }

void TaskWorker::adopt(pid_t process)
{
    std::lock_guard<std::mutex> lock(mutex_);
    processes_.push_back(process);
}

void TaskWorker::cancel()
{
    cancelled_ = true;
    std::lock_guard<std::mutex> lock(mutex_);
    // Each adopted process leads a group of its own, which holds its children too.
    for (pid_t process : processes_) {
        ::kill(-process, SIGKILL);
        ::waitpid(process, nullptr, 0);
    }
    processes_.clear();
}

size_t TaskWorker::reapFinished()
{
    std::lock_guard<std::mutex> lock(mutex_);
    processes_.erase(std::remove_if(processes_.begin(), processes_.end(),
                                    [](pid_t process) {
                                        return ::waitpid(process, nullptr, WNOHANG) != 0;
                                    }),
                     processes_.end());
    return processes_.size();
}

} // namespace VRK
