#include "base/task/BranchStopScope.h"

namespace VRK {

namespace {
thread_local const BranchStopScope* currentScope = nullptr;
}

BranchStopScope::BranchStopScope(const std::atomic<size_t>& firstFailure, size_t place,
                                 const BranchStopScope* outer)
    : firstFailure_(firstFailure), place_(place), outer_(outer), previous_(currentScope)
{
    currentScope = this;
}

BranchStopScope::~BranchStopScope() { currentScope = previous_; }

const BranchStopScope* BranchStopScope::current() { return currentScope; }

bool BranchStopScope::isStopped() const
{
    for (const BranchStopScope* scope = this; scope; scope = scope->outer_)
        if (scope->place_ > scope->firstFailure_.load(std::memory_order_relaxed))
            return true;
    return false;
}

} // namespace VRK
