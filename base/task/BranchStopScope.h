#ifndef VRK_BASE_TASK_BRANCHSTOPSCOPE_H
#define VRK_BASE_TASK_BRANCHSTOPSCOPE_H

#include <atomic>

namespace VRK {

// The stop flag of the branch of a run that this thread works on, linked to the flags of
// the branches that hold it: a branch stops when its own flag or any outer one is set.
// A scope lives on the stack of the thread that works on the branch.
class BranchStopScope {
public:
    // Makes `stopped` this thread's innermost flag, inside `outer`: the scope of the
    // thread that started the branch, or none.
    BranchStopScope(const std::atomic<bool>& stopped, const BranchStopScope* outer);
    ~BranchStopScope();
    BranchStopScope(const BranchStopScope&) = delete;
    BranchStopScope& operator=(const BranchStopScope&) = delete;

    // The innermost scope of this thread; none outside every branch.
    static const BranchStopScope* current();
    bool isStopped() const;

private:
    const std::atomic<bool>& stopped_;
    const BranchStopScope* outer_;
    const BranchStopScope* previous_;
};

} // namespace VRK

#endif
