#ifndef VRK_PLUGINS_PRIM_FLOW_MUXVALUEFUNCTOR_H
#define VRK_PLUGINS_PRIM_FLOW_MUXVALUEFUNCTOR_H

#include "base/graph/Functor.h"

namespace Prim {

// Carries a real value through a loop: "initial" on a loop's first pass, then what
// "feedback", a feedback port that may close a cycle, brought from the previous pass.
class MuxValue : public VRK::Functor {
public:
    MuxValue();
    MuxValue(const MuxValue&) = default;
    MuxValue& operator=(const MuxValue&) = default;
    ~MuxValue() override;

    void runImpl() override;
};

} // namespace Prim

#endif
