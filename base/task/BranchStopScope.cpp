#include "base/task/BranchStopScope.h"

namespace VRK {

namespace {
thread_local const BranchStopScope* currentScope = nullptr;
}

BranchStopScope::BranchStopScope(const std::atomic<bool>& stopped, const BranchStopScope* outer)
    : stopped_(stopped), outer_(outer), previous_(currentScope)
{
    currentScope = this;
}

BranchStopScope::~BranchStopScope() { currentScope = previous_; }

const BranchStopScope* BranchStopScope::current() { return currentScope; }

bool BranchStopScope::isStopped() const
{
    for (const BranchStopScope* scope = this; scope; scope = scope->outer_)
        if (scope->stopped_.load(std::memory_order_relaxed))
            return true;
    return false;
}

} // namespace VRK
