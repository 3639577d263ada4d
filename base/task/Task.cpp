#include "base/task/Task.h"

#include "base/task/BranchCancellation.h"
#include "base/task/BranchStopScope.h"
#include "base/task/TaskCancellation.h"

namespace VRK {

namespace {
thread_local Task* currentTask = nullptr;
}

Task::Task() = default;

// A cancelled run takes the processes it left running down with it.
Task::~Task()
{
    if (isCancelled())
        worker_.cancel();
}

// Only sets a flag: a signal handler may call it.
void Task::cancel() { cancelled_.store(true); }

bool Task::isCancelled() const { return cancelled_.load(); }

void Task::checkCancellation() const
{
    // Called before every functor: the flag is read without the virtual call.
    if (cancelled_.load(std::memory_order_relaxed))
        throw TaskCancellation();
    const BranchStopScope* branch = BranchStopScope::current();
    if (branch && branch->isStopped())
        throw BranchCancellation();
}

Task* Task::getCurrentTask() { return currentTask; }

Task::Activation::Activation(Task* task) : previous_(currentTask) { currentTask = task; }

Task::Activation::~Activation() { currentTask = previous_; }

} // namespace VRK
