#ifndef VRK_PLUGINS_PRIM_FLOW_STEPFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_STEPFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Passes the enclosing loop's step, read on its input "step", on to other functors.
class Step : public VRK::Functor {
public:
    Step();
    Step(const Step&) = default;
    Step& operator=(const Step&) = default;
    ~Step() override;

    void runImpl() override;
};

} // namespace Prim

#endif
