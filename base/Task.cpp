#include "base/Task.h"

#include "base/TaskCancellation.h"

namespace VRK {

namespace {
thread_local Task* currentTask = nullptr;
}

Task::Task() = default;

Task::~Task() = default;

void Task::cancel() { cancelled_.store(true); }

bool Task::isCancelled() const { return cancelled_.load(); }

void Task::checkCancellation() const
{
    if (isCancelled())
        throw TaskCancellation();
}

Task* Task::getCurrentTask() { return currentTask; }

Task::Activation::Activation(Task* task) : previous_(currentTask) { currentTask = task; }

Task::Activation::~Activation() { currentTask = previous_; }

} // namespace VRK
