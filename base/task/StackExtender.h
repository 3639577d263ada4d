#ifndef VRK_BASE_TASK_STACKEXTENDER_H
#define VRK_BASE_TASK_STACKEXTENDER_H

#include <cstddef>
#include <functional>

namespace VRK {

// Runs work on a machine stack of a given size, on the calling thread, so that work
// whose depth grows with its input (running containers nested thousands of levels
// deep) is bounded by memory rather than by the thread's stack. Thread-local state is
// the caller's: the work runs on the same thread, only its stack is another. The stack
// is reserved, not committed: pages the work never reaches cost nothing.
class StackExtender {
public:
    // Calls `work` on a stack of at least `bytes`; an exception that `work` throws is
    // thrown again on the caller's stack. Throws a RuntimeException when no stack of
    // that size can be reserved.
    static void run(size_t bytes, const std::function<void()>& work);
};

} // namespace VRK

#endif
