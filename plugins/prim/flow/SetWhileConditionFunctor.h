#ifndef VRK_PLUGINS_PRIM_FLOW_SETWHILECONDITIONFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_SETWHILECONDITIONFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Hands its "condition" on, the same data object, to the enclosing While or DoWhile,
// which reads it after the pass.
class SetWhileCondition : public VRK::Functor {
public:
    SetWhileCondition();
    SetWhileCondition(const SetWhileCondition&) = default;
    SetWhileCondition& operator=(const SetWhileCondition&) = default;
    ~SetWhileCondition() override;

    void runImpl() override;
};

} // namespace Prim

#endif
