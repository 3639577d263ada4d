#ifndef VRK_BASE_TASK_BRANCHSTOPSCOPE_H
#define VRK_BASE_TASK_BRANCHSTOPSCOPE_H

#include <atomic>
#include <cstddef>

namespace VRK {

// The branch of a run that this thread works on, linked to the branches that hold it.
// Branches are numbered by their place among the branches of their pass, and the pass
// keeps the place of its first failure: a branch stops when a failure came before it,
// in its own pass or in any that holds it. A scope lives on the stack of the thread
// that works on the branch.
class BranchStopScope {
public:
    // Makes branch `place` of the pass whose first failure lies at `firstFailure` this
    // thread's innermost branch, inside `outer`: the scope of the thread that started the
    // branch, or none.
    BranchStopScope(const std::atomic<size_t>& firstFailure, size_t place,
                    const BranchStopScope* outer);
    ~BranchStopScope();
    BranchStopScope(const BranchStopScope&) = delete;
    BranchStopScope& operator=(const BranchStopScope&) = delete;

    // The innermost scope of this thread; none outside every branch.
    static const BranchStopScope* current();
    bool isStopped() const;

private:
    const std::atomic<size_t>& firstFailure_;
    size_t place_;
    const BranchStopScope* outer_;
    const BranchStopScope* previous_;
};

} // namespace VRK

#endif
