#ifndef VRK_BASE_TASK_TASKCANCELLATION_H
#define VRK_BASE_TASK_TASKCANCELLATION_H

namespace VRK {

// Thrown when the user cancels a run. Deliberately outside the Exception family and
// not a std::exception, so that no error trap swallows it.
class TaskCancellation {};

} // namespace VRK

#endif
