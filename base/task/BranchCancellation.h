#ifndef VRK_BASE_TASK_BRANCHCANCELLATION_H
#define VRK_BASE_TASK_BRANCHCANCELLATION_H

namespace VRK {

// Thrown in a branch of a run that works beside others when a failure elsewhere has
// stopped it: the branch unwinds at its next functor or loop pass. Like a user's
// cancellation it is outside the Exception family and not a std::exception, so that no
// error trap inside the branch swallows it.
class BranchCancellation {};

} // namespace VRK

#endif
